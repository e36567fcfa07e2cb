#include "import_world.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using test_import::ImportWorld;

std::string damaged(std::string bytes, std::mt19937& random) {
    const auto place = [&] { return random() % (bytes.size() + 1); };
    switch (random() % 4) {
    case 0: // cut off
        bytes.resize(place());
        break;
    case 1: // a piece is missing
        bytes.erase(std::min(place(), place()), random() % 40);
        break;
    case 2: { // a piece stands twice
        const std::size_t from = place();
        bytes.insert(place(), bytes.substr(from, random() % 200));
        break;
    }
    default: // some bytes are others
        for (unsigned i = random() % 12 + 1; i > 0 && !bytes.empty(); --i)
            bytes[random() % bytes.size()] = static_cast<char>(random() % 4 ? random() % 96 + 32 : random());
    }
    return bytes;
}

TEST(Import, TakesADamagedFileWholeOrNotAtAll) {
    std::mt19937 random(20240311);
    std::vector<std::string> files;
    for (const std::string& name : test_import::data_files())
        files.push_back(support::content_of(test_import::data_folder() + name));
    ImportWorld world;
    std::size_t refused = 0;
    for (int round = 0; round < 1000; ++round) {
        const std::string bytes = damaged(files[random() % files.size()], random);
        const std::size_t activities = world.store().activities({}).size();
        const std::size_t contacts = world.store().contacts().size();
        std::size_t new_activities = 0;
        std::size_t new_contacts = 0;
        // Each file meets the same database again.
        const auto give_up = [&] {
            try {
                const importing::Report report = world.take(bytes);
                new_activities = report.activities;
                new_contacts = report.contacts;
            } catch (const values::Failure&) {
                ++refused;
            }
            ASSERT_EQ(world.store().activities({}).size(), activities + new_activities) << "round " << round;
            ASSERT_EQ(world.store().contacts().size(), contacts + new_contacts) << "round " << round;
            throw std::runtime_error("undone");
        };
        EXPECT_THROW(world.store().together(give_up), std::runtime_error);
    }
    EXPECT_EQ(world.records(), "");
    EXPECT_GT(refused, 200u);
    EXPECT_LT(refused, 800u);
}

} // namespace

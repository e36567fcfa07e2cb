#include "core/values/failure.h"
#include "core/values/ids.h"
#include "core/values/text.h"
#include "desk/model/activity_filter.h"
#include "desk/model/activity_values.h"
#include "desk/store/sample.h"
#include "desk/store/toolbar_commands.h"
#include "fuzz/target.h"
#include "support/temporary_database.h"

namespace {

store::Store& sample() {
    static support::TemporaryDatabase database;
    static const bool is_filled = (store::fill_sample(database.store(), values::DateTime::of(2024, 1, 10)), true);
    fuzz::require(is_filled);
    return database.store();
}

template <typename Call>
void expect_an_answer_or_a_sentence(Call call) {
    try {
        call();
    } catch (const values::Failure& failure) {
        fuzz::require(!failure.description().empty());
    }
}

} // namespace

// What other programs send over the bus, as lines: a filter, ids, the values of an activity, a command.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    std::vector<std::string> texts = values::split(fuzz::text_of(bytes, size), "\n");
    texts.resize(8);
    const values::Locale& locale = values::english_us();
    const auto today = values::DateTime::of(2024, 1, 10);
    expect_an_answer_or_a_sentence([&] {
        const act::ListFilter codes{static_cast<int>(size % 128), texts[0], texts[1]};
        const model::ActivityFilter filter = model::filter_of(codes, locale);
        model::FilteredActivities found(sample(), filter, today, texts[2]);
        fuzz::require(static_cast<int>(found.next(found.count()).size()) == found.count());
        const act::ListFilter again = model::codes_of(filter, locale);
        fuzz::require(model::filter_of(again, locale) == filter);
    });
    for (const std::string& id : values::ids_in(texts[2]))
        expect_an_answer_or_a_sentence([&] {
            sample().contact(id);
            sample().activity(id);
        });
    model::read_values({.type = texts[0],
                        .date = texts[1],
                        .time = texts[2],
                        .duration = texts[3],
                        .regarding = texts[4],
                        .priority = texts[5],
                        .scheduled_for = texts[6]},
                       sample().users(), locale);
    expect_an_answer_or_a_sentence([&] {
        store::ToolbarCommands& commands = sample().toolbar_commands();
        const auto place = static_cast<store::CommandPlace>(size % 2);
        const int view = static_cast<int>(size % 9);
        struct Forget {};
        try {
            sample().together([&] {
                commands.add({.name = texts[0], .program = texts[1], .folder = texts[2], .title = texts[3]});
                fuzz::require(commands.exists(texts[0]));
                fuzz::require(commands.place(texts[0], place, view) == (view >= 1 && view <= 6));
                throw Forget();
            });
        } catch (const Forget&) {
        }
    });
    return 0;
}

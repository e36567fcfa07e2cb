#include "adapters/qt/single_instance.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// Another process that asks for the mark.
class Holder {
public:
    Holder(const QTemporaryDir& place, const QString& display) {
        process_.start(QCoreApplication::applicationDirPath() + "/test_instance_holder", {place.path(), display});
        answer = process_.waitForReadyRead() ? process_.readLine().trimmed() : QByteArray("silent");
    }
    ~Holder() { end(); }
    void end() {
        process_.closeWriteChannel();
        process_.waitForFinished();
    }
    void crash() {
        process_.kill();
        process_.waitForFinished();
    }
    QByteArray answer; // "first" or "second"

private:
    QProcess process_;
};

class SingleInstance : public ::testing::Test {
protected:
    bool already_running(const QString& display) {
        return qt::SingleInstance("orvanta", place.path(), display).already_running();
    }

    QTemporaryDir place;
};

TEST_F(SingleInstance, KnowsOfTheFirstProcessUntilItEnds) {
    Holder first(place, ":0");
    ASSERT_EQ(first.answer, "first");
    {
        const Holder second(place, ":0");
        EXPECT_EQ(second.answer, "second");
        EXPECT_TRUE(already_running(":0"));
    }
    EXPECT_TRUE(already_running(":0"));
    first.end();
    EXPECT_FALSE(already_running(":0"));
}

TEST_F(SingleInstance, LetsEachDisplayHaveItsOwn) {
    const Holder first(place, ":0");
    ASSERT_EQ(first.answer, "first");
    EXPECT_FALSE(already_running(":1"));
}

TEST_F(SingleInstance, ForgetsAProcessThatCrashed) {
    Holder first(place, ":0");
    ASSERT_EQ(first.answer, "first");
    first.crash();
    EXPECT_FALSE(already_running(":0"));
}

TEST_F(SingleInstance, StaysTheFirstHoweverOftenItAsks) {
    qt::SingleInstance instance("orvanta", place.path(), ":0");
    EXPECT_FALSE(instance.already_running());
    EXPECT_FALSE(instance.already_running());
}

TEST_F(SingleInstance, StartsWhereTheMarkCantBeLeft) {
    EXPECT_FALSE(qt::SingleInstance("orvanta", place.filePath("missing"), ":0").already_running());
}

} // namespace

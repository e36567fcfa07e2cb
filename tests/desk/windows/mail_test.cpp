#include "desk/windows/mail.h"

#include "support/fake_mail_program.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QTest>

#include <memory>
#include <optional>

using namespace windows;
using namespace std::chrono_literals;

namespace {

class MailTest : public testing::Test {
protected:
    // What came of it.
    bool hand_over(const Message& message) {
        std::optional<bool> result;
        mail->hand_over(message, [&](bool is_taken) {
            EXPECT_FALSE(result) << "told twice";
            result = is_taken;
        });
        EXPECT_FALSE(result) << "told before it returned";
        EXPECT_TRUE(QTest::qWaitFor([&] { return result.has_value(); }, 10000));
        QTest::qWait(20);
        return result.value_or(false);
    }

    const Message message{{"zoe@amber.example"}, "Call: Prices", "call.ics", "BEGIN:VCALENDAR\r\n"};
    support::FakeMailProgram program;
    std::unique_ptr<Mail> mail = std::make_unique<Mail>();
};

} // namespace

TEST_F(MailTest, GivesTheProgramSubjectAttachmentAndAddresses) {
    program.install(0);
    EXPECT_TRUE(hand_over(message));
    const auto given = program.given();
    ASSERT_EQ(given.size(), 6);
    EXPECT_EQ(given.mid(0, 4), (QStringList{"--utf8", "--subject", "Call: Prices", "--attach"}));
    EXPECT_TRUE(given[4].endsWith("/call.ics"));
    EXPECT_EQ(given[5], "zoe@amber.example");
}

TEST_F(MailTest, NobodyElseCanReadTheAttachmentAndItGoesInTheEnd) {
    program.install(0);
    hand_over(message);
    const QFileInfo attachment(program.given().value(4));
    QFile file(attachment.filePath());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), message.attachment);
    EXPECT_FALSE(file.permissions() & (QFileDevice::ReadGroup | QFileDevice::ReadOther));
    QFileInfo folder(QFileInfo(attachment.path()).path());
    EXPECT_FALSE(folder.permissions() & (QFileDevice::ExeGroup | QFileDevice::ExeOther));
    mail.reset();
    EXPECT_FALSE(QFileInfo::exists(attachment.filePath()));
    EXPECT_FALSE(QFileInfo::exists(folder.filePath()));
}

TEST_F(MailTest, TwoMessagesHaveEachItsOwnAttachment) {
    program.install(0);
    hand_over(message);
    const auto first = program.given().value(4);
    hand_over(message);
    EXPECT_NE(program.given().value(4), first);
    EXPECT_TRUE(QFileInfo::exists(first));
}

TEST_F(MailTest, MarksInTheSubjectCantNameAnotherFile) {
    program.install(0);
    auto sly = message;
    sly.subject = "Lunch',attachment='/etc/passwd\" `x`\r\nBcc: all\\";
    hand_over(sly);
    EXPECT_EQ(program.given().value(2), QString::fromUtf8("Lunch’,attachment=’/etc/passwd” ’x’ Bcc: all"));
}

TEST_F(MailTest, WhatIsNoAddressIsLeftOut) {
    program.install(0);
    auto sly = message;
    sly.addresses = {"--attach",          "/etc/passwd", "", "a b@c", "x@y?attach=/etc/passwd",
                     "ok+1@host.example", "x@y\n"};
    hand_over(sly);
    EXPECT_EQ(program.given().mid(5), QStringList{"ok+1@host.example"});
}

TEST_F(MailTest, AProgramThatFailsHasntTakenIt) {
    program.install(3);
    EXPECT_FALSE(hand_over(message));
}

TEST_F(MailTest, WithoutAProgramNobodyTakesIt) { EXPECT_FALSE(hand_over(message)); }

TEST_F(MailTest, AProgramThatStaysOpenHasTakenIt) {
    program.install(0, 30);
    mail = std::make_unique<Mail>(50ms);
    EXPECT_TRUE(hand_over(message));
}

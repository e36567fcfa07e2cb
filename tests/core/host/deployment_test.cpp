#include "core/host/deployment.h"

#include <gtest/gtest.h>

TEST(ApplicationInfo, NamesTheProgramItsVersionAndTheSupportAddress) {
    const host::ApplicationInfo& application = host::application_info();
    EXPECT_EQ(application.title, "Orvanta");
    EXPECT_EQ(std::to_string(application.major) + "." + std::to_string(application.minor) + "." +
                  std::to_string(application.revision),
              PROJECT_VERSION);
    EXPECT_EQ(application.support_address, host::support_address);
}

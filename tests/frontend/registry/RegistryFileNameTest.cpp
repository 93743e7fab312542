#include "frontend/registry/FileRegistry.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace registry {
namespace {

class RegistryFileNameTest : public testing::Test {
protected:
    ~RegistryFileNameTest() override { unsetenv("KRX8_REGISTRY"); }
};

TEST_F(RegistryFileNameTest, VariableNamesTheFile) {
    setenv("KRX8_REGISTRY", "/somewhere/settings.json", 1);
    EXPECT_EQ(FindRegistryFile(), "/somewhere/settings.json");
}

TEST_F(RegistryFileNameTest, WithoutVariableItIsTheMachines) {
    unsetenv("KRX8_REGISTRY");
    EXPECT_EQ(FindRegistryFile(), "/var/lib/krx8/registry.json");
}

TEST_F(RegistryFileNameTest, EmptyVariableNamesNothing) {
    setenv("KRX8_REGISTRY", "", 1);
    EXPECT_EQ(FindRegistryFile(), "/var/lib/krx8/registry.json");
}

}
}

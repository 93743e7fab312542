#include "tests/component/win32/server/RegisteredFixture.h"

#include "frontend/win32/Text.h"

#include <comcat.h>
#include <gtest/gtest.h>

namespace component {

namespace {

/// The categories through the eyes of a host, which asks the system's manager.
class CategoriesTest : public RegisteredFixture {
protected:
    void SetUp() override {
        ASSERT_EQ(CoCreateInstance(CLSID_StdComponentCategoriesMgr, nullptr, CLSCTX_INPROC_SERVER,
                                   IID_PPV_ARGS(m_manager.GetAddressOf())),
                  S_OK);
    }

    ComPtr<ICatInformation> m_manager;
};

TEST_F(CategoriesTest, EachIsDescribedInEnglish) {
    for (const std::string& line : TenCategories()) {
        const auto end = line.find(' ');
        CATID category{};
        ASSERT_EQ(CLSIDFromString(win32::ToWide(line.substr(0, end)).c_str(), &category), S_OK);
        LPWSTR description = nullptr;
        ASSERT_EQ(m_manager->GetCategoryDesc(category, 0x409, &description), S_OK) << line;
        EXPECT_EQ(win32::FromWide(description), line.substr(end + 1));
        CoTaskMemFree(description);
    }
}

TEST_F(CategoriesTest, ClassImplementsNone) {
    ComPtr<IEnumGUID> categories;
    GUID category{};
    ASSERT_EQ(m_manager->EnumImplCategoriesOfClass(kRegisteredClass, categories.GetAddressOf()),
              S_OK);
    EXPECT_EQ(categories->Next(1, &category, nullptr), S_FALSE);
}

TEST_F(CategoriesTest, ClassRequiresNone) {
    ComPtr<IEnumGUID> categories;
    GUID category{};
    ASSERT_EQ(m_manager->EnumReqCategoriesOfClass(kRegisteredClass, categories.GetAddressOf()),
              S_OK);
    EXPECT_EQ(categories->Next(1, &category, nullptr), S_FALSE);
}

}

}

#include "panel/registration/ComponentRegistration.h"

#include "contract/GuidText.h"
#include "panel/registration/RegistrationScript.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace panel {

namespace {

using contract::kSuccess;
using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Status kRefused = Status::FromBits(0x80070005);
constexpr Status kOther = Status::FromBits(0x8002801C);

/// Writes down what it is asked for and answers as told.
class CRecordingRegistrar : public IRegistrar {
public:
    Status Apply(std::span<const RegistryStep> steps) override {
        log.push_back("steps " + std::to_string(steps.size()) + " from " + steps[0].key);
        return ofSteps;
    }
    Status RegisterTypeLibrary() override {
        log.push_back("type library");
        return ofTypeLibrary;
    }
    Status UnregisterTypeLibrary() override {
        log.push_back("no type library");
        return ofTypeLibrary;
    }
    Status RegisterCategory(const contract::Guid& identifier, std::uint32_t locale,
                            std::string_view description) override {
        log.push_back(FormatGuid(identifier) + " " + std::to_string(locale) + " " +
                      std::string(description));
        return ofCategories;
    }

    Status ofSteps;
    Status ofTypeLibrary;
    Status ofCategories;
    std::vector<std::string> log;
};

const std::vector<std::string> kWholeRegistration = {
    "steps 23 from QRZ.KRX8Maintenance.1",
    "type library",
    "{A17A3B60-97BE-4310-AAA9-6B0E8C0FA36B} 1033 QRZ WST Component",
    "{A17A3B61-97BE-4310-AAA9-6B0E8C0FA36B} 1033 QRZ WST User Interface",
    "{A17A3B62-97BE-4310-AAA9-6B0E8C0FA36B} 1033 QRZ WST Provider",
    "{A17A3B63-97BE-4310-AAA9-6B0E8C0FA36B} 1033 QRZ WST Configuration Component",
    "{A17A3B64-97BE-4310-AAA9-6B0E8C0FA36B} 1033 QRZ OPQ MfcMdiComponent",
    "{A17A3B66-97BE-4310-AAA9-6B0E8C0FA36B} 1033 QRZ OPQ BaseComponent",
    "{A17A3B65-97BE-4310-AAA9-6B0E8C0FA36B} 1033 QRZ OPQ Feature",
    "{A17A3B67-97BE-4310-AAA9-6B0E8C0FA36B} 1033 QRZ Settings Component",
    "{A17A3B68-97BE-4310-AAA9-6B0E8C0FA36B} 1033 QRZ WST Custom Filter Component",
    "{A17A3B69-97BE-4310-AAA9-6B0E8C0FA36B} 1033 QRZ WST Common Audio Control"};

class ComponentRegistrationTest : public testing::Test {
protected:
    Status Register() { return RegisterComponent(m_registrar, kRegistrationScript, "/ui.so"); }
    Status Unregister() { return UnregisterComponent(m_registrar, kRegistrationScript); }

    CRecordingRegistrar m_registrar;
};

TEST_F(ComponentRegistrationTest, ClassThenTypeLibraryThenTheTenCategoriesInOrder) {
    EXPECT_EQ(Register(), kSuccess);
    EXPECT_EQ(m_registrar.log, kWholeRegistration);
}

TEST_F(ComponentRegistrationTest, ClassThatCannotBeRegisteredEndsIt) {
    m_registrar.ofSteps = kRefused;
    EXPECT_EQ(Register(), kRefused);
    EXPECT_THAT(m_registrar.log, ElementsAre("steps 23 from QRZ.KRX8Maintenance.1"));
}

TEST_F(ComponentRegistrationTest, TypeLibraryThatCannotBeRegisteredEndsIt) {
    m_registrar.ofTypeLibrary = kOther;
    EXPECT_EQ(Register(), kOther);
    EXPECT_THAT(m_registrar.log,
                ElementsAre("steps 23 from QRZ.KRX8Maintenance.1", "type library"));
}

TEST_F(ComponentRegistrationTest, CategoriesThatFailStopNeitherTheOthersNorTheRegistration) {
    m_registrar.ofCategories = kRefused;
    EXPECT_EQ(Register(), kSuccess);
    EXPECT_EQ(m_registrar.log, kWholeRegistration);
}

TEST_F(ComponentRegistrationTest, DescriptionOfACategoryIsCutTo127Units) {
    const std::string longest(127, 'x');
    const std::string tooLong = longest + "y";
    const std::string cutInsideASymbol = std::string(126, 'x') + "\U0001F50C";
    const ComponentCategory categories[] = {
        {{}, longest.c_str()}, {{}, tooLong.c_str()}, {{}, cutInsideASymbol.c_str()}};
    RegisterCategories(m_registrar, categories);
    const std::string start = "{00000000-0000-0000-0000-000000000000} 1033 ";
    EXPECT_THAT(m_registrar.log,
                ElementsAre(start + longest, start + longest, start + std::string(126, 'x')));
}

TEST_F(ComponentRegistrationTest, RegisteringTwiceDoesTheSameTwice) {
    EXPECT_EQ(Register(), kSuccess);
    m_registrar.log.clear();
    EXPECT_EQ(Register(), kSuccess);
    EXPECT_EQ(m_registrar.log, kWholeRegistration);
}

TEST_F(ComponentRegistrationTest, UnregisteringTakesClassAndTypeLibraryAndLeavesTheCategories) {
    EXPECT_EQ(Unregister(), kSuccess);
    EXPECT_THAT(m_registrar.log,
                ElementsAre("steps 3 from QRZ.KRX8Maintenance.1", "no type library"));
}

TEST_F(ComponentRegistrationTest, UnregisteringGoesOnAfterAFailureAndReturnsTheFirst) {
    m_registrar.ofSteps = kRefused;
    m_registrar.ofTypeLibrary = kOther;
    EXPECT_EQ(Unregister(), kRefused);
    EXPECT_EQ(m_registrar.log.size(), 2u);
    m_registrar.ofSteps = kSuccess;
    EXPECT_EQ(Unregister(), kOther);
}

TEST_F(ComponentRegistrationTest, DamagedScriptRegistersNothing) {
    EXPECT_EQ(RegisterComponent(m_registrar, "HKCR {", "/ui.so"), Status::FromBits(0x80004005));
    EXPECT_THAT(m_registrar.log, IsEmpty());
}

}

}

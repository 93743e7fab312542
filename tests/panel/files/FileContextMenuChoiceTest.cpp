#include "tests/support/CommandFixture.h"

namespace {

using namespace panel;
using namespace support;
using testing::IsEmpty;

/// A menu that returns what it does not have.
class CStrangeMenu final : public IPopupMenu {
public:
    explicit CStrangeMenu(int command) : m_command(command) {}

    int Show(std::span<const MenuItem>, Point) override { return m_command; }

private:
    const int m_command;
};

class CToolkitWithStrangeMenu final : public headless::CHeadlessToolkit {
public:
    CToolkitWithStrangeMenu(std::shared_ptr<headless::HeadlessDesktop> desktop, int command)
        : CHeadlessToolkit(std::move(desktop)), m_command(command) {}

    std::unique_ptr<IPopupMenu> CreatePopupMenu(int&) override {
        return std::make_unique<CStrangeMenu>(m_command);
    }

private:
    const int m_command;
};

/// What a toolkit's menu returns although the panel's commands are 1 to 10.
class FileContextMenuChoiceTest : public CommandFixture, public testing::WithParamInterface<int> {};

TEST_P(FileContextMenuChoiceTest, CommandThatThereIsNotDoesNothing) {
    panel =
        CKRX8Maintenance::Create(std::make_unique<CToolkitWithStrangeMenu>(desktop, GetParam()));
    simulator::DeviceDescription description = HealthyDevice(simulator::kKrx8);
    description.selfTests[contract::SelfTest::Usb] = 1;
    Start(description);
    SelectRows({1});
    ASSERT_TRUE(View().RightClick(kFileList, 1));
    EXPECT_THAT(TakeCalls(), IsEmpty());
    EXPECT_THAT(device->calls, IsEmpty());
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
    // Whatever disables the controls for a while takes Details away for good.
    EXPECT_TRUE(IsEnabled(kDetailsButton));
}

INSTANTIATE_TEST_SUITE_P(, FileContextMenuChoiceTest, testing::Values(-1, 11),
                         [](const auto& tested) {
                             return tested.param < 0 ? "BelowTheFirst" : "BeyondTheLast";
                         });

}

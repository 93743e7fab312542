#include "tests/component/win32/control/SimulatedDeviceFixture.h"

#include "panel/control/PanelTemplate.h"
#include "simulator/DeviceFolder.h"

#include <commctrl.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace controltests {

namespace {

constexpr int kColumnCount = 7;
constexpr const char* kFirstMember = "\"mode\"";

std::string ReadText(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}

void SimulatedDeviceFixture::StartWithSample(const std::string& name) { StartWithSample(name, ""); }

void SimulatedDeviceFixture::StartWithSample(const std::string& name, const std::string& members) {
    ASSERT_NO_FATAL_FAILURE(InsertSample(name, members));
    simulated.SetHostViewControl(host->viewControl);
    const auto member = container.As<IContextMember>();
    ASSERT_EQ(member->SetContextAndRegister(bridge->Export(simulated.Context()).Get()), S_OK);
    container.Embed();
    ASSERT_EQ(container.Activate(), S_OK);
    container.Pump();
    const auto access = container.As<ISetSubsystemAccess>();
    ASSERT_EQ(access->SetSubsystemAccess(bridge->Export(simulated.SubsystemAccess()).Get()), S_OK);
    const auto client = container.As<IConnectionClient>();
    ASSERT_EQ(client->SetConnection(bridge->Export(simulated.Connection()).Get()), S_OK);
    ASSERT_EQ(container.As<IGoClient>()->Go(), S_OK);
    container.Pump();
}

void SimulatedDeviceFixture::InsertSample(const std::string& name, const std::string& members) {
    const std::filesystem::path copy = folder.Path() / "device";
    std::filesystem::copy(std::filesystem::path(KRX8_SAMPLES) / name, copy,
                          std::filesystem::copy_options::recursive);
    std::string description = ReadText(copy / "device.json");
    description.insert(description.find(kFirstMember), members);
    folder.Write("device/device.json", description);
    auto opened = simulator::OpenDevice(copy);
    const auto* error = std::get_if<simulator::DescriptionError>(&opened);
    ASSERT_EQ(error, nullptr) << error->Message();
    simulated.InsertDevice(std::get<std::shared_ptr<simulator::CDevice>>(std::move(opened)));
}

std::string SimulatedDeviceFixture::PackageFile(const std::string& name) const {
    const std::filesystem::path copy = folder.Path() / "package";
    if (!std::filesystem::exists(copy)) {
        std::filesystem::copy(KRX8_PACKAGE, copy, std::filesystem::copy_options::recursive);
    }
    return folder.PathOf("package/" + name);
}

std::string SimulatedDeviceFixture::Log() { return User().ShownText(panel::kStatusLog); }

int SimulatedDeviceFixture::RowCount() const {
    return ListView_GetItemCount(container.Button(panel::kFileList));
}

std::vector<std::string> SimulatedDeviceFixture::Row(int row) {
    std::vector<std::string> cells;
    for (int column = 0; column < kColumnCount; ++column) {
        cells.push_back(User().ShownCell(panel::kFileList, row, column));
    }
    return cells;
}

int SimulatedDeviceFixture::RowOf(const std::string& name) {
    for (int row = 0; row < RowCount(); ++row) {
        if (User().ShownCell(panel::kFileList, row, 0) == name) {
            return row;
        }
    }
    ADD_FAILURE() << "no row of " << name;
    return -1;
}

std::vector<std::string> SimulatedDeviceFixture::SelectedNames() {
    std::vector<std::string> names;
    const HWND list = container.Button(panel::kFileList);
    for (int row = -1; (row = ListView_GetNextItem(list, row, LVNI_SELECTED)) != -1;) {
        names.push_back(User().ShownCell(panel::kFileList, row, 0));
    }
    return names;
}

void SimulatedDeviceFixture::ChooseWithFile(int command, const std::string& path) {
    prompts.ExpectMenu(command);
    prompts.ExpectFileDialog(
        [&](conformance::IFileDialogUser& user) { EXPECT_TRUE(user.Accept(path)); });
    EXPECT_TRUE(User().RightClickRow(panel::kFileList, 0));
    container.Pump();
}

void SimulatedDeviceFixture::TearDown() {
    ControlFixture::TearDown();
    EXPECT_EQ(simulated.ContextMemberCount(), 0u);
    EXPECT_EQ(simulated.DeviceSubscriberCount(), 0u);
    EXPECT_EQ(simulated.ConnectionSubscriberCount(), 0u);
    EXPECT_TRUE(simulated.PollingEnabled());
}

}

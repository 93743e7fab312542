#include "frontend/headless/ViewPicture.h"
#include "tests/frontend/headless/HeadlessTest.h"

#include "panel/control/PanelTemplate.h"

namespace headless {

namespace {

using panel::Alignment;

class ViewPictureTest : public HeadlessTest {
protected:
    static std::string ValueBeside(const TextPicture& picture, const std::string& label) {
        for (const PictureField& field : picture.fields) {
            if (field.label == label)
                return field.value;
        }
        return "no such field";
    }
};

TEST_F(ViewPictureTest, PanelIsReadWithFieldsListAndLog) {
    CHeadlessView& view = Show(panel::kPanelTemplate);
    view.SetText(panel::kInfoGroup, "KRX-20 Info");
    view.SetText(panel::kSerialNumberField, "00-00-5E-00-53-14");
    view.SetText(panel::kIpAddressField, "192.168.0.1");
    view.InsertColumn(panel::kFileList, 0, {"File name", 120, Alignment::Left});
    view.InsertColumn(panel::kFileList, 1, {"Size (B)", 80, Alignment::Right});
    view.InsertRow(panel::kFileList, 0, "version.fia");
    view.SetCell(panel::kFileList, 0, 1, "12");
    view.AppendLog(panel::kStatusLog, "Updating file listing...\r\nFile listing updated\r\n");
    EXPECT_EQ(FormatTextPicture(PictureOf(view)), "KRX-20 Info\n"
                                                  "S/N               00-00-5E-00-53-14\n"
                                                  "HW\n"
                                                  "Flash Size (B)\n"
                                                  "Free Flash (B)\n"
                                                  "SRAM Size (B)\n"
                                                  "Free SRAM (B)\n"
                                                  "Boot SW\n"
                                                  "FPGA\n"
                                                  "Application SW\n"
                                                  "Self-test Status\n"
                                                  "IP address        192.168.0.1\n"
                                                  "\n"
                                                  "Flash Box Files\n"
                                                  "File name    Size (B)\n"
                                                  "version.fia        12\n"
                                                  "\n"
                                                  "Progress Info\n"
                                                  "Updating file listing...\n"
                                                  "File listing updated\n");
}

TEST_F(ViewPictureTest, HiddenControlsAreLeftOut) {
    CHeadlessView& view = Show(panel::kPanelTemplate);
    view.SetText(panel::kHardwareField, "1.2");
    view.SetVisible(panel::kHardwareLabel, false);
    view.SetVisible(panel::kHardwareField, false);
    view.SetVisible(panel::kFileList, false);
    const TextPicture picture = PictureOf(view);
    EXPECT_EQ(ValueBeside(picture, "HW"), "no such field");
    EXPECT_TRUE(picture.columns.empty());
}

TEST_F(ViewPictureTest, LabelLosesItsMnemonicMark) {
    static constexpr panel::ControlTemplate kControls[] = {
        {1, panel::ControlKind::Label, "&Name", {}},
        {2, panel::ControlKind::TextField, "value", {}},
    };
    CHeadlessView& view = Show({1, "Title", {100, 100}, kControls});
    EXPECT_EQ(FormatTextPicture(PictureOf(view)), "Title\n"
                                                  "Name  value\n");
}

}

}

#include "panel/control/StringTable.h"

#include <gtest/gtest.h>

#include <map>

namespace panel {
namespace {

std::string Text(int id) { return LoadPanelString(static_cast<StringId>(id)); }

const std::map<int, std::string> kTexts = {
    {103, "Update KRX-10 software"},
    {113, "Some tests failed"},
    {114, "TEST OK"},
    {127, "Resetting prommer."},
    {128, "Information about the Programming Device is saved.\n\nThe full path to the report file "
          "is:\n"},
    {129, "Generate info report."},
    {130, "Error in printing report to file."},
    {131, "Upload Phone Code file"},
    {132, "FPGA code upload"},
    {133, "Application code upload"},
    {134, "Application code upload via RS-232"},
    {136, "Delete Phone Code file(s)        Delete"},
    {137, "Fpga files (*.bin)|*.bin|All files (*.*)|*.*|"},
    {138, "mcs"},
    {139, "FPGA code updating failed"},
    {142, "Application files (*.bin)|*.bin|All files (*.*)|*.*|"},
    {143, "bin"},
    {144, "Application code updating failed"},
    {146, "All files (*.*)|*.*|Secondary and Algorithm files (*.fia)|*.fia|Secondary and Algorithm "
          "files for QX3 (*.fg)|*.fg|"},
    {149, "Phone Code file uploading failed"},
    {154, "Deleting files"},
    {155, "Can't delete file"},
    {156, "Deleting Algorithm Code file"},
    {157, "Deleting Secondary Boot Code file"},
    {158, "Deleting MCUSW file"},
    {159, "Ini files (*.ini)|*.ini|All files (*.*)|*.*|"},
    {160, "ini"},
    {161, "Updating Programming Device software"},
    {163, "Prommer SW updated succesfully."},
    {166, "Prommer Maintenance"},
    {167, "A fatal error has occured, please restart Halcyon and try again."},
    {169, "Move file to Flash"},
    {170, "Move file to external storage"},
    {172, "Phone Code file upload"},
    {174, "KRX-10 software image upload failed"},
    {175, "Software upload"},
    {176, "krx10"},
    {177, "KRX-10 image (*.krx10)|*.krx10|All files (*.*)|*.*|"},
    {178, "File moving failed"},
    {179, "File move"},
    {181, "KRX-10 Configuration"},
    {182, "Krx10Control Feature getting failed"},
    {183, "Flash preparation failed"},
    {184, "PCCard preparation failed"},
    {186, "Cannot get communication configuration parameters of KRX-10 / KRX-20"},
    {187, "Configuration of KRX-10's / KRX-20's communication parameters failed"},
    {188, "Mode changing to Normal mode failed"},
    {190, "KRX-8 / KRX-8C MAINTENANCE INFO"},
    {191, "KRX-10 MAINTENANCE INFO"},
    {192, "Programming Device update via INI-file failed"},
    {193, "Update via INI-file partially failed: not all files are updated"},
    {194, "Cannot get self-test results"},
    {195, "Select &All"},
    {196, "The Programming Device is not in Normal mode and therefore some information about the "
          "Programming Device can be incorrect.\n\nThis can be a result of invalid or broken "
          "software of the Programming Device. Please, update the Programming Device"},
    {197, "KRX-20 MAINTENANCE INFO"},
    {198, "Update KRX-20 software"},
    {199, "KRX-20 software image upload failed"},
    {200, "krx20"},
    {201, "KRX-20 image (*.krx20)|*.krx20|All files (*.*)|*.*|"},
    {202, "Re-executing of CF and/or PCCard test(s) failed"},
    {203, "Newer version of Programming Device software is available."},
    {204, "No \"version.fia\" file was found from the Programming Device. This may be a result of "
          "previously failed update."},
};

TEST(StringTableTest, TextsStandAsTheUserKnowsThem) {
    for (const auto& [id, text] : kTexts) {
        EXPECT_EQ(Text(id), text) << "text " << id;
    }
}

TEST(StringTableTest, OtherIdsGiveEmptyText) {
    for (int id = 0; id <= 300; ++id) {
        if (!kTexts.contains(id)) {
            EXPECT_EQ(Text(id), "") << "text " << id;
        }
    }
}

}
}

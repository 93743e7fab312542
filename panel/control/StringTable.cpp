#include "panel/control/StringTable.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace panel {

namespace {

struct Entry {
    StringId id;
    std::string_view text;
};

// Service instructions quote some of these texts with their slips, so the slips stay.
constexpr Entry kStrings[] = {
    {StringId::UpdateKrx10Software, "Update KRX-10 software"},
    {StringId::SomeTestsFailed, "Some tests failed"},
    {StringId::TestOk, "TEST OK"},
    {StringId::ResettingPrommer, "Resetting prommer."},
    {StringId::ReportIsSaved, "Information about the Programming Device is saved.\n\n"
                              "The full path to the report file is:\n"},
    {StringId::GenerateReport, "Generate info report."},
    {StringId::ReportFailed, "Error in printing report to file."},
    {StringId::UploadPhoneFile, "Upload Phone Code file"},
    {StringId::UploadFpgaCode, "FPGA code upload"},
    {StringId::UploadApplicationCode, "Application code upload"},
    {StringId::UploadApplicationCodeRs232, "Application code upload via RS-232"},
    // The blanks and the name of the key are part of the text; the menu has no accelerators.
    {StringId::DeletePhoneFiles, "Delete Phone Code file(s)        Delete"},
    {StringId::FpgaCodeFilter, "Fpga files (*.bin)|*.bin|All files (*.*)|*.*|"},
    // Nobody loads this extension, nor those of application code and images: the dialogs that would
    // use them are given the filter's text instead (CCodeUpload::ChooseFile). They belong to the
    // table all the same.
    {StringId::FpgaCodeExtension, "mcs"},
    {StringId::FpgaCodeFailed, "FPGA code updating failed"},
    {StringId::ApplicationCodeFilter, "Application files (*.bin)|*.bin|All files (*.*)|*.*|"},
    {StringId::ApplicationCodeExtension, "bin"},
    {StringId::ApplicationCodeFailed, "Application code updating failed"},
    {StringId::PhoneFileFilter, "All files (*.*)|*.*|Secondary and Algorithm files (*.fia)|*.fia|"
                                "Secondary and Algorithm files for QX3 (*.fg)|*.fg|"},
    {StringId::PhoneFileFailed, "Phone Code file uploading failed"},
    {StringId::DeletingFiles, "Deleting files"},
    {StringId::CannotDeleteFile, "Can't delete file"},
    {StringId::DeletingAlgorithmCode, "Deleting Algorithm Code file"},
    {StringId::DeletingSecondaryBootCode, "Deleting Secondary Boot Code file"},
    {StringId::DeletingMcuSoftware, "Deleting MCUSW file"},
    {StringId::IniFilter, "Ini files (*.ini)|*.ini|All files (*.*)|*.*|"},
    {StringId::IniExtension, "ini"},
    {StringId::UpdatingSoftware, "Updating Programming Device software"},
    {StringId::SoftwareUpdated, "Prommer SW updated succesfully."},
    {StringId::PrommerMaintenance, "Prommer Maintenance"},
    {StringId::FatalError, "A fatal error has occured, please restart Halcyon and try again."},
    {StringId::MoveToFlash, "Move file to Flash"},
    {StringId::MoveToExternalStorage, "Move file to external storage"},
    {StringId::PhoneFileUpload, "Phone Code file upload"},
    {StringId::Krx10ImageFailed, "KRX-10 software image upload failed"},
    {StringId::SoftwareUpload, "Software upload"},
    {StringId::Krx10ImageExtension, "krx10"},
    {StringId::Krx10ImageFilter, "KRX-10 image (*.krx10)|*.krx10|All files (*.*)|*.*|"},
    {StringId::FileMoveFailed, "File moving failed"},
    {StringId::FileMove, "File move"},
    {StringId::Krx10Configuration, "KRX-10 Configuration"},
    {StringId::Krx10ControlFailed, "Krx10Control Feature getting failed"},
    {StringId::FlashPreparationFailed, "Flash preparation failed"},
    {StringId::PcCardPreparationFailed, "PCCard preparation failed"},
    {StringId::ConfigurationReadFailed,
     "Cannot get communication configuration parameters of KRX-10 / KRX-20"},
    {StringId::ConfigurationWriteFailed,
     "Configuration of KRX-10's / KRX-20's communication parameters failed"},
    {StringId::NormalModeFailed, "Mode changing to Normal mode failed"},
    {StringId::Krx8ReportHeader, "KRX-8 / KRX-8C MAINTENANCE INFO"},
    {StringId::Krx10ReportHeader, "KRX-10 MAINTENANCE INFO"},
    {StringId::UpdateFailed, "Programming Device update via INI-file failed"},
    {StringId::UpdatePartiallyFailed,
     "Update via INI-file partially failed: not all files are updated"},
    {StringId::CannotGetSelfTestResults, "Cannot get self-test results"},
    {StringId::SelectAll, "Select &All"},
    {StringId::NotInNormalMode,
     "The Programming Device is not in Normal mode and therefore some information about the "
     "Programming Device can be incorrect.\n\n"
     "This can be a result of invalid or broken software of the Programming Device. "
     "Please, update the Programming Device"},
    {StringId::Krx20ReportHeader, "KRX-20 MAINTENANCE INFO"},
    {StringId::UpdateKrx20Software, "Update KRX-20 software"},
    {StringId::Krx20ImageFailed, "KRX-20 software image upload failed"},
    {StringId::Krx20ImageExtension, "krx20"},
    {StringId::Krx20ImageFilter, "KRX-20 image (*.krx20)|*.krx20|All files (*.*)|*.*|"},
    {StringId::MediaTestsFailed, "Re-executing of CF and/or PCCard test(s) failed"},
    {StringId::NewerSoftware, "Newer version of Programming Device software is available."},
    {StringId::NoPackageVersion, "No \"version.fia\" file was found from the Programming Device. "
                                 "This may be a result of previously failed update."},
};

// What shows a text reserves 512 bytes for it, terminator included.
constexpr std::size_t kLongestText = 511;
static_assert(std::all_of(std::begin(kStrings), std::end(kStrings),
                          [](const Entry& entry) { return entry.text.size() <= kLongestText; }));

}

std::string LoadPanelString(StringId id) {
    const auto* entry = std::find_if(std::begin(kStrings), std::end(kStrings),
                                     [id](const Entry& candidate) { return candidate.id == id; });
    return entry == std::end(kStrings) ? std::string() : std::string(entry->text);
}

}

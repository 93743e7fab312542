#pragma once

#include <cstdint>
#include <string>

namespace panel {

/// Ids of the panel's texts; those that a sequence names by their number.
enum class StringId : std::uint16_t {
    UpdateKrx10Software = 103,
    SomeTestsFailed = 113,
    TestOk = 114,
    ResettingPrommer = 127,
    ReportIsSaved = 128,
    GenerateReport = 129,
    ReportFailed = 130,
    UploadPhoneFile = 131,
    UploadFpgaCode = 132,
    UploadApplicationCode = 133,
    UploadApplicationCodeRs232 = 134,
    DeletePhoneFiles = 136,
    FpgaCodeFilter = 137,
    FpgaCodeExtension = 138,
    FpgaCodeFailed = 139,
    ApplicationCodeFilter = 142,
    ApplicationCodeExtension = 143,
    ApplicationCodeFailed = 144,
    PhoneFileFilter = 146,
    PhoneFileFailed = 149,
    DeletingFiles = 154,
    CannotDeleteFile = 155,
    DeletingAlgorithmCode = 156,
    DeletingSecondaryBootCode = 157,
    DeletingMcuSoftware = 158,
    IniFilter = 159,
    IniExtension = 160,
    UpdatingSoftware = 161,
    SoftwareUpdated = 163,
    PrommerMaintenance = 166,
    FatalError = 167,
    MoveToFlash = 169,
    MoveToExternalStorage = 170,
    PhoneFileUpload = 172,
    Krx10ImageFailed = 174,
    SoftwareUpload = 175,
    Krx10ImageExtension = 176,
    Krx10ImageFilter = 177,
    FileMoveFailed = 178,
    FileMove = 179,
    Krx10Configuration = 181,
    Krx10ControlFailed = 182,
    FlashPreparationFailed = 183,
    PcCardPreparationFailed = 184,
    ConfigurationReadFailed = 186,
    ConfigurationWriteFailed = 187,
    NormalModeFailed = 188,
    Krx8ReportHeader = 190,
    Krx10ReportHeader = 191,
    UpdateFailed = 192,
    UpdatePartiallyFailed = 193,
    CannotGetSelfTestResults = 194,
    SelectAll = 195,
    NotInNormalMode = 196,
    Krx20ReportHeader = 197,
    UpdateKrx20Software = 198,
    Krx20ImageFailed = 199,
    Krx20ImageExtension = 200,
    Krx20ImageFilter = 201,
    MediaTestsFailed = 202,
    NewerSoftware = 203,
    NoPackageVersion = 204,
};

/// The text of that id (UTF-8, at most 511 bytes); empty when there is none.
std::string LoadPanelString(StringId id);

}

#include "tests/component/win32/server/RegistrationFixture.h"

#include "frontend/win32/Text.h"

#include <comcat.h>

#include <algorithm>

namespace component {

std::vector<std::string> KeysOfClass(const std::filesystem::path& file) {
    const std::string path = win32::FromWide(file.wstring());
    const std::string identifier = "{235783FE-1F74-487E-8561-9E890047927A}";
    const std::string root = "CLSID\\" + identifier;
    std::vector<std::string> keys = {"QRZ.KRX8Maintenance.1 = KRX8Maintenance Class",
                                     "QRZ.KRX8Maintenance.1\\CLSID = " + identifier,
                                     "QRZ.KRX8Maintenance = KRX8Maintenance Class",
                                     "QRZ.KRX8Maintenance\\CLSID = " + identifier,
                                     "QRZ.KRX8Maintenance\\CurVer = QRZ.KRX8Maintenance.1",
                                     root + " = KRX8Maintenance Class",
                                     root + "\\ProgID = QRZ.KRX8Maintenance.1",
                                     root + "\\VersionIndependentProgID = QRZ.KRX8Maintenance",
                                     root + "\\Programmable",
                                     root + "\\InprocServer32 = " + path,
                                     root + "\\InprocServer32:ThreadingModel = Apartment",
                                     root + "\\Control",
                                     root + "\\Insertable",
                                     root + "\\ToolboxBitmap32 = " + path + ", 101",
                                     root + "\\MiscStatus = 0",
                                     root + "\\MiscStatus\\1 = 131473",
                                     root + "\\TypeLib = {315D7CB4-B70F-454D-8520-D76BBCAB99AD}",
                                     root + "\\Version = 1.0"};
    std::sort(keys.begin(), keys.end());
    return keys;
}

std::vector<std::string> DumpClass() {
    std::vector<std::string> keys;
    for (const wchar_t* key : {kVersionKey, kProgramKey, kClassKey}) {
        const auto dumped = DumpTree(key);
        keys.insert(keys.end(), dumped.begin(), dumped.end());
    }
    std::sort(keys.begin(), keys.end());
    return keys;
}

std::vector<std::string> TenCategories() {
    return {"{A17A3B60-97BE-4310-AAA9-6B0E8C0FA36B} QRZ WST Component",
            "{A17A3B61-97BE-4310-AAA9-6B0E8C0FA36B} QRZ WST User Interface",
            "{A17A3B62-97BE-4310-AAA9-6B0E8C0FA36B} QRZ WST Provider",
            "{A17A3B63-97BE-4310-AAA9-6B0E8C0FA36B} QRZ WST Configuration Component",
            "{A17A3B64-97BE-4310-AAA9-6B0E8C0FA36B} QRZ OPQ MfcMdiComponent",
            "{A17A3B65-97BE-4310-AAA9-6B0E8C0FA36B} QRZ OPQ Feature",
            "{A17A3B66-97BE-4310-AAA9-6B0E8C0FA36B} QRZ OPQ BaseComponent",
            "{A17A3B67-97BE-4310-AAA9-6B0E8C0FA36B} QRZ Settings Component",
            "{A17A3B68-97BE-4310-AAA9-6B0E8C0FA36B} QRZ WST Custom Filter Component",
            "{A17A3B69-97BE-4310-AAA9-6B0E8C0FA36B} QRZ WST Common Audio Control"};
}

std::vector<std::string> ListedCategories() {
    constexpr LCID kEnglish = 0x409;
    std::vector<std::string> listed;
    ComPtr<ICatInformation> manager;
    ComPtr<IEnumCATEGORYINFO> categories;
    EXPECT_EQ(CoCreateInstance(CLSID_StdComponentCategoriesMgr, nullptr, CLSCTX_INPROC_SERVER,
                               IID_PPV_ARGS(manager.GetAddressOf())),
              S_OK);
    EXPECT_EQ(manager->EnumCategories(kEnglish, categories.GetAddressOf()), S_OK);
    CATEGORYINFO category{};
    while (categories->Next(1, &category, nullptr) == S_OK) {
        wchar_t identifier[40];
        StringFromGUID2(category.catid, identifier, 40);
        const std::wstring line = std::wstring(identifier) + L" " + category.szDescription;
        if (line.starts_with(L"{A17A3B6") && category.lcid == kEnglish) {
            listed.push_back(win32::FromWide(line));
        }
    }
    std::sort(listed.begin(), listed.end());
    return listed;
}

}

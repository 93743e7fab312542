#include "frontend/registry/Catalogue.h"

#include "contract/GuidText.h"
#include "frontend/registry/SettingsFile.h"
#include "frontend/registry/SystemError.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace registry {

namespace {

std::string DefaultText(const Settings& settings, const std::string& path) {
    const auto key = settings.find(CatalogueKey(path));
    if (key == settings.end()) {
        return {};
    }
    const auto text = key->find("");
    return text != key->end() && text->is_string() ? text->get<std::string>() : std::string();
}

std::string ReadFault(const std::string& file, int error) {
    return error == kInvalidData ? file + " is damaged; mend it, or remove it and register anew"
                                 : file + " cannot be read (error " + std::to_string(error) + ")";
}

}

std::string CatalogueKey(const std::string& path) {
    std::string name = "SOFTWARE/Classes/" + path;
    std::ranges::replace(name, '\\', '/');
    return name;
}

std::variant<CatalogueEntry, std::string> FindComponent(const std::string& file,
                                                        const std::string& programIdentifier) {
    Settings settings;
    if (const int error = CSettingsFile(file, [](const std::string&) {}).Load(settings)) {
        return ReadFault(file, error);
    }
    const std::string classText = DefaultText(settings, programIdentifier + "\\CLSID");
    if (classText.empty()) {
        return programIdentifier + " is not registered in " + file;
    }
    const auto classIdentifier = contract::ParseGuid(classText);
    const std::string library = DefaultText(settings, "CLSID\\" + classText + "\\InprocServer32");
    if (!classIdentifier || library.empty()) {
        return programIdentifier + " is registered in " + file + ", but its class " + classText +
               " names no library";
    }
    return CatalogueEntry{*classIdentifier, library};
}

}

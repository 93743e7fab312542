#include "panel/files/MenuContents.h"

#include "panel/control/StringTable.h"
#include "panel/files/FileCells.h"

#include <iterator>
#include <utility>

namespace panel {

namespace {

using enum FileContextMenuCommand;

struct MenuText {
    FileContextMenuCommand command;
    StringId text;
};

// In the order of their numbers.
constexpr MenuText kMenuTexts[] = {
    {UploadPhoneFile, StringId::UploadPhoneFile},
    {Delete, StringId::DeletePhoneFiles},
    {MoveToFlash, StringId::MoveToFlash},
    {MoveToExternalStorage, StringId::MoveToExternalStorage},
    {UploadFpgaCode, StringId::UploadFpgaCode},
    {UploadApplicationCode, StringId::UploadApplicationCode},
    {UploadApplicationCodeRs232, StringId::UploadApplicationCodeRs232},
    {UpdateKrx10Software, StringId::UpdateKrx10Software},
    {UpdateKrx20Software, StringId::UpdateKrx20Software},
    {SelectAll, StringId::SelectAll},
};

using Commands = std::vector<FileContextMenuCommand>;

class CMenuBuilder {
public:
    void Add(FileContextMenuCommand command) {
        const auto position = static_cast<std::size_t>(command) - 1;
        m_items.push_back({static_cast<int>(command), LoadPanelString(kMenuTexts[position].text)});
    }

    void Add(const Commands& commands) {
        for (const FileContextMenuCommand command : commands) {
            Add(command);
        }
    }

    void AddSeparator() { m_items.push_back({}); }

    void AddSeparatorUnlessEmpty() {
        if (!m_items.empty()) {
            AddSeparator();
        }
    }

    std::vector<MenuItem> Take() { return std::move(m_items); }

private:
    std::vector<MenuItem> m_items;
};

Commands MovesOfKrx8(const SelectionSummary& selection) {
    const bool isMcuSoftwareInRam =
        selection.commonType == static_cast<std::int32_t>(FileType::McuSoftware) &&
        selection.commonLocation == static_cast<std::int32_t>(FileLocation::Ram);
    return isMcuSoftwareInRam ? Commands{MoveToFlash} : Commands{};
}

Commands MovesOfOthers(const SelectionSummary& selection, bool hasExternalStorage) {
    switch (static_cast<FileLocation>(selection.commonLocation)) {
    case FileLocation::Ram:
        return hasExternalStorage ? Commands{MoveToFlash, MoveToExternalStorage}
                                  : Commands{MoveToFlash};
    case FileLocation::Flash:
        return hasExternalStorage ? Commands{MoveToExternalStorage} : Commands{};
    case FileLocation::PcCard:
        return {MoveToFlash};
    }
    return {};
}

Commands CodeUploadsOf(DeviceType type) {
    switch (type) {
    case DeviceType::Krx8:
    case DeviceType::Krx8C:
        return {UploadFpgaCode, UploadApplicationCode, UploadApplicationCodeRs232};
    case DeviceType::Krx10:
        return {UpdateKrx10Software};
    case DeviceType::Krx20:
    case DeviceType::Krx21:
        return {UpdateKrx20Software};
    }
    return {};
}

}

bool DependsOnExternalStorage(DeviceType type, const SelectionSummary& selection) {
    return selection.selectedCount > 0 && !IsKrx8Family(type);
}

std::vector<MenuItem> FileMenu(const MenuSituation& situation) {
    const SelectionSummary& selection = situation.selection;
    const bool isKrx8 = IsKrx8Family(situation.type);
    CMenuBuilder menu;
    if (situation.mode == DeviceMode::Normal || isKrx8) {
        menu.Add(UploadPhoneFile);
    }
    if (selection.selectedCount > 0) {
        menu.Add(Delete);
        const Commands moves = isKrx8 ? MovesOfKrx8(selection)
                                      : MovesOfOthers(selection, situation.hasExternalStorage);
        if (!moves.empty()) {
            menu.AddSeparator();
            menu.Add(moves);
        }
    }
    menu.AddSeparatorUnlessEmpty();
    menu.Add(CodeUploadsOf(situation.type));
    if (selection.rowCount > 0) {
        menu.AddSeparatorUnlessEmpty();
        menu.Add(SelectAll);
    }
    return menu.Take();
}

}

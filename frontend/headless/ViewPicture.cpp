#include "frontend/headless/ViewPicture.h"

#include "frontend/headless/HeadlessView.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace headless {

namespace {

using enum panel::ControlKind;
using panel::ControlTemplate;

bool IsList(const ControlTemplate& control) {
    return control.kind == MultiSelectList || control.kind == SingleSelectList;
}

std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find("\r\n");
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 2);
    }
    return lines;
}

// Walks the template once; group box and label wait for the control that they belong to.
class CPainter {
public:
    CPainter(const panel::IView& view, const std::vector<PictureColumn>& columns)
        : m_view(view), m_columns(columns) {}

    TextPicture Paint(const panel::DialogTemplate& dialogTemplate) {
        m_picture.title = dialogTemplate.title;
        for (const ControlTemplate& control : dialogTemplate.controls) {
            if (m_view.IsVisible(control.id)) {
                Add(control);
            }
        }
        return std::move(m_picture);
    }

private:
    void Add(const ControlTemplate& control) {
        if (control.kind == GroupBox) {
            AddGroup(m_view.GetText(control.id));
        } else if (control.kind == Label) {
            m_label = m_view.GetText(control.id);
        } else if (control.kind == TextField || control.kind == NumberField ||
                   control.kind == EditField) {
            m_picture.fields.push_back({std::exchange(m_label, {}), m_view.GetText(control.id)});
        } else if (control.kind == Log) {
            AddLog(control.id);
        } else if (IsList(control) && m_picture.columns.empty()) {
            AddList(control.id);
        }
    }

    void AddGroup(std::string title) {
        if (m_picture.title.empty()) {
            m_picture.title = std::move(title);
        } else {
            m_group = std::move(title);
        }
    }

    void AddLog(panel::ControlId log) {
        m_picture.logTitle = std::exchange(m_group, {});
        m_picture.logLines = SplitLines(m_view.GetText(log));
    }

    void AddList(panel::ControlId list) {
        m_picture.listTitle = std::exchange(m_group, {});
        m_picture.columns = m_columns;
        for (int row = 0; row < m_view.GetRowCount(list); ++row) {
            std::vector<std::string>& cells = m_picture.rows.emplace_back();
            for (int column = 0; column < static_cast<int>(m_columns.size()); ++column) {
                cells.push_back(m_view.GetCell(list, row, column));
            }
        }
    }

    const panel::IView& m_view;
    const std::vector<PictureColumn>& m_columns;
    TextPicture m_picture;
    std::string m_label;
    std::string m_group;
};

}

TextPicture PictureOf(const panel::IView& view, const panel::DialogTemplate& dialogTemplate,
                      const std::vector<PictureColumn>& columns) {
    return CPainter(view, columns).Paint(dialogTemplate);
}

TextPicture PictureOf(const CHeadlessView& view) {
    std::vector<PictureColumn> columns;
    for (const ControlTemplate& control : view.Template().controls) {
        if (!IsList(control) || !view.IsVisible(control.id)) {
            continue;
        }
        for (const HeadlessColumn& column : view.Columns(control.id)) {
            columns.push_back({column.heading, column.alignment});
        }
        break;
    }
    return PictureOf(view, view.Template(), columns);
}

}

#include "workstation/PanelPicture.h"

#include "workstation/Text.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>

namespace workstation {

namespace {

using headless::PictureColumn;

template <class Widget>
QList<Widget*> ShownChildren(const QWidget& holder) {
    QList<Widget*> shown;
    for (Widget* widget : holder.findChildren<Widget*>()) {
        if (widget->isVisibleTo(&holder)) {
            shown.push_back(widget);
        }
    }
    return shown;
}

// Group boxes stand beside what they frame, so it is the place that tells.
std::string TitleAround(const QWidget& holder, const QWidget& widget) {
    for (const QGroupBox* group : ShownChildren<QGroupBox>(holder)) {
        if (group->parent() == widget.parent() && group->geometry().contains(widget.geometry())) {
            return WithoutMnemonic(group->title());
        }
    }
    return {};
}

void ReadFields(const QWidget& holder, headless::TextPicture& picture) {
    for (const QLabel* label : ShownChildren<QLabel>(holder)) {
        const auto* const field = qobject_cast<QLineEdit*>(label->buddy());
        if (!field) {
            continue;
        }
        if (picture.fields.empty()) {
            picture.title = TitleAround(holder, *field);
        }
        picture.fields.push_back({WithoutMnemonic(label->text()), field->text().toStdString()});
    }
}

PictureColumn ReadColumn(const QAbstractItemModel& model, int column) {
    const auto ask = [&](int role) { return model.headerData(column, Qt::Horizontal, role); };
    const bool isRight = (ask(Qt::TextAlignmentRole).toInt() & Qt::AlignRight) != 0;
    return {ask(Qt::DisplayRole).toString().toStdString(),
            isRight ? panel::Alignment::Right : panel::Alignment::Left};
}

void ReadList(const QWidget& holder, headless::TextPicture& picture) {
    const auto lists = ShownChildren<QTableView>(holder);
    if (lists.empty() || !lists.front()->model()) {
        return;
    }
    const QAbstractItemModel& model = *lists.front()->model();
    picture.listTitle = TitleAround(holder, *lists.front());
    for (int column = 0; column < model.columnCount(); ++column) {
        picture.columns.push_back(ReadColumn(model, column));
    }
    for (int row = 0; row < model.rowCount(); ++row) {
        auto& cells = picture.rows.emplace_back();
        for (int column = 0; column < model.columnCount(); ++column) {
            cells.push_back(model.index(row, column).data().toString().toStdString());
        }
    }
}

void ReadLog(const QWidget& holder, headless::TextPicture& picture) {
    const auto logs = ShownChildren<QPlainTextEdit>(holder);
    if (logs.empty()) {
        return;
    }
    picture.logTitle = TitleAround(holder, *logs.front());
    const QStringList lines = logs.front()->toPlainText().split('\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        picture.logLines.push_back(line.toStdString());
    }
}

}

headless::TextPicture ReadPanelPicture(QWidget& holder) {
    // Lists and logs gather news and show them when they are painted.
    holder.grab();
    headless::TextPicture picture;
    ReadFields(holder, picture);
    ReadList(holder, picture);
    ReadLog(holder, picture);
    return picture;
}

}

// Usage: widget_bench WIDGET COUNT
//
// Fills one widget with that many rows or lines, in a process of its own, and prints a figure a
// line:
//   ms N  from the first row until all are there and the window is painted
//   mb N  memory added, in 2^20 bytes
//
// The panel's list and log are filled as the panel does it, the toolkit's own widgets in the
// quickest way that they have for the same: rows all at once, lines one after the other as they
// come.

#include "bench/ResidentMemory.h"
#include "frontend/qt/ListView.h"
#include "frontend/qt/LogView.h"
#include "frontend/qt/Text.h"
#include "panel/files/FileCells.h"
#include "panel/files/FileRowKey.h"

#include <QApplication>
#include <QHeaderView>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <QTreeWidget>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <iterator>
#include <stdexcept>
#include <string>

namespace {

using Cells = std::array<std::string, 7>;

constexpr std::int32_t kTypes[] = {19, 21, 22};

// Texts as a device with many files has them, made anew for each row so that they take no memory.
void MakeRow(int row, Cells& cells) {
    panel::CellBuffer buffer;
    cells[0] = "phone_code_" + std::to_string(row) + ".fia";
    cells[1] = panel::FileTypeText(kTypes[row % 3]);
    cells[2] = panel::NumberText(row, buffer);
    cells[3] = "2." + std::to_string(row % 100) + "." + std::to_string(row % 7);
    cells[4] = panel::NumberText(1024 + row % 100000, buffer);
    cells[5] = panel::FileLocationText(1 + row % 3, buffer);
    cells[6] = panel::FileGenerationText(static_cast<std::uint32_t>(3 + row % 3), buffer);
}

panel::FileRowKey MakeKey(int row) {
    return panel::MakeFileRowKey(kTypes[row % 3], 1 + row % 3, row);
}

std::string MakeLine(int line) { return "Writing block " + std::to_string(line); }

QStringList Headings() {
    QStringList headings;
    for (const panel::ListColumn& column : panel::FileColumns()) {
        headings.append(QString::fromUtf8(column.heading));
    }
    return headings;
}

// What is pending is painted as well, as painting may find out that more is to be shown.
void Paint(const QAbstractScrollArea& widget) {
    widget.viewport()->repaint();
    QCoreApplication::processEvents();
}

/// Makes a widget in its parent and returns what fills it and answers how much is in it then.
using Filler = std::function<int(int count)>;

Filler MakePanelList(QWidget& parent) {
    auto* const list = new qt::CListView(qt::CListView::Selection::Multiple, &parent);
    int index = 0;
    for (const panel::ListColumn& column : panel::FileColumns()) {
        list->InsertColumn(index++, column);
    }
    return [list](int count) {
        Cells cells;
        for (int row = 0; row < count; ++row) {
            MakeRow(row, cells);
            list->InsertRow(row, cells[0]);
            for (int column = 1; column < 7; ++column) {
                list->SetCell(row, column, cells[static_cast<std::size_t>(column)]);
            }
            list->SetRowKey(row, MakeKey(row));
        }
        Paint(*list);
        return list->model()->rowCount();
    };
}

Filler MakeTree(QWidget& parent) {
    auto* const tree = new QTreeWidget(&parent);
    tree->setHeaderLabels(Headings());
    tree->setRootIsDecorated(false);
    tree->setUniformRowHeights(true);
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    return [tree](int count) {
        Cells cells;
        QList<QTreeWidgetItem*> items;
        items.reserve(count);
        for (int row = 0; row < count; ++row) {
            MakeRow(row, cells);
            QStringList texts;
            for (const std::string& cell : cells) {
                texts.append(qt::ToQt(cell));
            }
            items.append(new QTreeWidgetItem(texts));
            items.back()->setData(0, Qt::UserRole, MakeKey(row));
        }
        tree->addTopLevelItems(items);
        Paint(*tree);
        return tree->topLevelItemCount();
    };
}

Filler MakeTable(QWidget& parent) {
    auto* const table = new QTableWidget(&parent);
    table->setColumnCount(7);
    table->setHorizontalHeaderLabels(Headings());
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->setShowGrid(false);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    return [table](int count) {
        Cells cells;
        table->setRowCount(count);
        for (int row = 0; row < count; ++row) {
            MakeRow(row, cells);
            for (int column = 0; column < 7; ++column) {
                const std::string& cell = cells[static_cast<std::size_t>(column)];
                table->setItem(row, column, new QTableWidgetItem(qt::ToQt(cell)));
            }
            table->item(row, 0)->setData(Qt::UserRole, MakeKey(row));
        }
        Paint(*table);
        return table->item(count - 1, 6) != nullptr ? table->rowCount() : 0;
    };
}

Filler MakePanelLog(QWidget& parent) {
    auto* const log = new qt::CLogView(&parent);
    return [log](int count) {
        for (int line = 0; line < count; ++line) {
            log->Append(MakeLine(line) + "\r\n");
        }
        Paint(*log);
        return log->blockCount() - 1;
    };
}

Filler MakePlainText(QWidget& parent) {
    auto* const text = new QPlainTextEdit(&parent);
    text->setReadOnly(true);
    return [text](int count) {
        for (int line = 0; line < count; ++line) {
            text->appendPlainText(qt::ToQt(MakeLine(line)));
        }
        Paint(*text);
        return text->blockCount();
    };
}

struct Widget {
    std::string_view name;
    Filler (*make)(QWidget& parent);
};

constexpr Widget kWidgets[] = {{"panel-list", MakePanelList},
                               {"QTreeWidget", MakeTree},
                               {"QTableWidget", MakeTable},
                               {"panel-log", MakePanelLog},
                               {"QPlainTextEdit", MakePlainText}};

void Measure(std::string_view name, int count) {
    const auto* const widget = std::ranges::find(kWidgets, name, &Widget::name);
    if (widget == std::end(kWidgets) || count <= 0) {
        throw std::runtime_error("usage: widget_bench WIDGET COUNT");
    }
    QWidget window;
    const Filler fill = widget->make(window);
    window.findChild<QWidget*>({}, Qt::FindDirectChildrenOnly)->resize(800, 500);
    window.resize(800, 500);
    window.show();
    QCoreApplication::processEvents();

    const double before = bench::ResidentMegabytes();
    const auto start = std::chrono::steady_clock::now();
    const int filled = fill(count);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    if (filled != count) {
        throw std::runtime_error("rows or lines are missing");
    }
    std::printf("ms %.2f\nmb %.2f\n", time.count(), bench::ResidentMegabytes() - before);
}

}

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    try {
        Measure(argc == 3 ? argv[1] : "", argc == 3 ? std::atoi(argv[2]) : 0);
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "widget_bench: %s\n", problem.what());
        return EXIT_FAILURE;
    }
}

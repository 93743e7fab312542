// A window of the toolkit with controls of the kinds that the workstation's has, each plain and
// nearly empty, and no program behind them: what no workstation made with this toolkit can be
// below.

#include <QApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    auto* const content = new QWidget;
    auto* const row = new QHBoxLayout(content);
    row->addWidget(new QListWidget);
    auto* const group = new QGroupBox(QStringLiteral("Info"));
    auto* const form = new QFormLayout(group);
    for (int field = 0; field < 11; ++field) {
        form->addRow(QStringLiteral("Field"), new QLineEdit(QStringLiteral("text")));
    }
    row->addWidget(group);
    row->addWidget(new QTableWidget(10, 7));
    row->addWidget(new QPlainTextEdit(QStringLiteral("text")));
    row->addWidget(new QPushButton(QStringLiteral("Button")));
    window.setCentralWidget(content);
    window.statusBar()->addWidget(new QProgressBar);
    window.setWindowTitle(QStringLiteral("plain"));
    window.resize(1014, 560);
    window.show();
    return QApplication::exec();
}

#include "frontend/qt/FileDialog.h"

#include "frontend/qt/ArrowCursor.h"
#include "frontend/qt/FileFilters.h"
#include "frontend/qt/Text.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTreeView>

#include <utility>

namespace qt {

namespace {

QLineEdit& NameFieldOf(const CFileDialog& dialog) {
    return *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

QString ToFolder(const std::string& path) { return ToQt(path).replace(u'\\', u'/'); }

// The nearest folder to a missing one that is there; the user's own where that is nothing but the
// root, which helps nobody.
QString FindStartFolder(const QString& wanted) {
    QString folder = QDir::cleanPath(wanted);
    while (!QFileInfo(folder).isDir()) {
        folder = QFileInfo(folder).path();
        if (QDir(folder).isRoot() || folder == QStringLiteral(".")) {
            return QDir::homePath();
        }
    }
    return folder;
}

}

CFileDialog::CFileDialog(panel::FileDialog dialog, Kind kind, QWidget* owner)
    : QFileDialog(owner), m_dialog(std::move(dialog)), m_kind(kind) {
    setObjectName(QStringLiteral("file-dialog"));
    SetUp();
    if (m_dialog.optionsTemplate) {
        AddOptions();
    }
}

// The descriptions of filters are shown without the patterns that the toolkit wants behind them.
void CFileDialog::SetUp() {
    const bool isSave = m_kind == Kind::Save;
    setOptions(DontUseNativeDialog | DontConfirmOverwrite | HideNameFilterDetails);
    setAcceptMode(isSave ? AcceptSave : AcceptOpen);
    setFileMode(isSave ? AnyFile : ExistingFile);
    if (!m_dialog.title.empty()) {
        setWindowTitle(ToTitle(m_dialog.title));
    }
    setNameFilters(ToNameFilters(m_dialog.filters));
    if (!m_dialog.startFolder.empty()) {
        setDirectory(FindStartFolder(ToFolder(m_dialog.startFolder)));
    }
    if (!m_dialog.fileName.empty()) {
        selectFile(ToQt(m_dialog.fileName));
    }
    ShowCellsWhole();
    connect(&NameFieldOf(*this), &QLineEdit::textChanged, this, [this] { AllowName(); });
}

// By themselves sizes and dates are cut in the middle.
void CFileDialog::ShowCellsWhole() {
    constexpr int kNameColumn = 0;
    QHeaderView& header = *findChild<QTreeView*>(QStringLiteral("treeView"))->header();
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(kNameColumn, QHeaderView::Stretch);
}

void CFileDialog::AddOptions() {
    m_options =
        std::make_unique<CQtView>(*m_dialog.optionsTemplate, *this, *m_dialog.optionsHandler);
    // The focus starts in the field for the name, which belongs to no view.
    m_options->AnswerHelpForWindow();
    QWidget& options = *m_options->GetWidget();
    options.setFixedSize(options.size());
    auto& rows = static_cast<QGridLayout&>(*layout());
    rows.addWidget(&options, rows.rowCount(), 0, 1, -1);
}

panel::FileOutcome CFileDialog::Run() {
    const QPointer<CFileDialog> self(this);
    if (m_options) {
        m_dialog.optionsHandler->OnInit(*m_options);
    }
    if (self && m_options) {
        m_options->GetWidget()->show();
    }
    if (self) {
        exec();
    }
    return self ? m_outcome : panel::FileOutcome::Cancelled();
}

// Later, when none of the dialog's widgets is in the middle of an event: what the options' handler
// does may end the dialog, and the toolkit's fields do not expect to end inside their own keys.
void CFileDialog::accept() {
    QMetaObject::invokeMethod(
        this, [this] { TakeName(); }, Qt::QueuedConnection);
}

// The base looks at the name next, and ends with done() when it is one that can be taken.
void CFileDialog::TakeName() {
    if (!isVisible()) {
        return;
    }
    if (const QString completed = GetCompletedName(); !completed.isEmpty()) {
        ReplaceName(completed);
    }
    if (HasFolder() && HasRoomForPath()) {
        QFileDialog::accept();
    }
}

void CFileDialog::done(int result) {
    if (result != Accepted) {
        QFileDialog::done(result);
        return;
    }
    std::string path = GetPath();
    const QPointer<CFileDialog> self(this);
    const bool isRefused = m_dialog.optionsHandler && !m_dialog.optionsHandler->OnFileAccepted();
    if (self && !isRefused) {
        m_outcome = panel::FileOutcome::Accepted(std::move(path));
        QFileDialog::done(result);
    }
}

// The toolkit's own default extension would also change a name that exists as it was typed, so that
// a file without one could not be opened.
QString CFileDialog::GetCompletedName() const {
    const QString typed = selectedFiles().value(0);
    if (typed.isEmpty() || QFileInfo(typed).isDir()) {
        return {};
    }
    const QString completed =
        ToQt(panel::WithDefaultExtension(FromQt(typed), m_dialog.defaultExtension));
    const bool isWanted =
        m_kind == Kind::Save || (!QFileInfo::exists(typed) && QFileInfo::exists(completed));
    return isWanted && completed != typed ? completed : QString();
}

// The toolkit lets the button be pressed only for a name that exists as it is, or that a new file
// could have. One that is too long gets an answer rather than a grey button.
void CFileDialog::AllowName() {
    if (!GetCompletedName().isEmpty() || !Fits(GetPath())) {
        const auto which = m_kind == Kind::Save ? QDialogButtonBox::Save : QDialogButtonBox::Open;
        findChild<QDialogButtonBox*>()->button(which)->setEnabled(true);
    }
}

// What is selected in the list of files counts before what is typed.
void CFileDialog::ReplaceName(const QString& name) {
    findChild<QListView*>(QStringLiteral("listView"))->selectionModel()->clear();
    NameFieldOf(*this).setText(name);
}

bool CFileDialog::HasFolder() {
    const QStringList typed = selectedFiles();
    if (m_kind == Kind::Open || typed.isEmpty()) {
        return true;
    }
    const QFileInfo file(typed.front());
    if (file.isDir() || file.dir().exists()) {
        return true;
    }
    SayWhyNot(file.path(), QStringLiteral("The folder was not found."));
    return false;
}

// An end with an error would be passed over in silence by most commands, as if nothing had been
// chosen.
bool CFileDialog::HasRoomForPath() {
    const std::string path = GetPath();
    if (Fits(path)) {
        return true;
    }
    SayWhyNot(ToQt(path), QStringLiteral("The path is too long. Choose a shorter name, or a folder "
                                         "with a shorter path."));
    return false;
}

// A folder is entered, not delivered.
bool CFileDialog::Fits(const std::string& path) const {
    return path.size() < m_dialog.pathCapacity || QFileInfo(ToQt(path)).isDir();
}

// A long path has no blank at which the box could break it.
void CFileDialog::SayWhyNot(const QString& path, const QString& reason) {
    const QString shown = fontMetrics().elidedText(path, Qt::ElideMiddle, width());
    const QPointer<QMessageBox> box(
        new QMessageBox(QMessageBox::Warning, windowTitle(), {}, QMessageBox::Ok, this));
    box->setTextFormat(Qt::PlainText);
    box->setText(shown + u'\n' + reason);
    box->exec();
    delete box;
}

std::string CFileDialog::GetPath() const {
    return FromQt(QDir::cleanPath(selectedFiles().value(0)));
}

panel::FileOutcome RunFileDialog(const panel::FileDialog& dialog, CFileDialog::Kind kind,
                                 QWidget* owner) {
    const CArrowCursor arrow;
    const QPointer<CFileDialog> window(new CFileDialog(dialog, kind, owner));
    panel::FileOutcome outcome = window->Run();
    delete window;
    return outcome;
}

}

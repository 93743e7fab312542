#include "frontend/qt/FileDialog.h"

#include "frontend/qt/ArrowCursor.h"
#include "frontend/qt/FileFilters.h"
#include "frontend/qt/Text.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace qt {

namespace {

QLineEdit& NameFieldOf(const CFileDialog& dialog) {
    return *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

QString ToFolder(const std::string& path) { return ToQt(path).replace(u'\\', u'/'); }

}

CFileDialog::CFileDialog(const panel::FileDialog& dialog, Kind kind, QWidget* owner)
    : QFileDialog(owner), m_dialog(dialog), m_kind(kind) {
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
        const QString folder = ToFolder(m_dialog.startFolder);
        setDirectory(QFileInfo(folder).isDir() ? folder : QDir::currentPath());
    }
    if (!m_dialog.fileName.empty()) {
        selectFile(ToQt(m_dialog.fileName));
    }
    if (!isSave) {
        connect(&NameFieldOf(*this), &QLineEdit::textChanged, this,
                [this] { AllowCompletedName(); });
    }
}

void CFileDialog::AddOptions() {
    m_options =
        std::make_unique<CQtView>(*m_dialog.optionsTemplate, *this, *m_dialog.optionsHandler);
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
    if (HasFolder()) {
        QFileDialog::accept();
    }
}

void CFileDialog::done(int result) {
    if (result != Accepted) {
        QFileDialog::done(result);
        return;
    }
    const panel::FileOutcome choice = TakeChoice();
    const QPointer<CFileDialog> self(this);
    const bool isRefused = choice.kind == panel::FileOutcome::Kind::Accepted &&
                           m_dialog.optionsHandler && !m_dialog.optionsHandler->OnFileAccepted();
    if (self && !isRefused) {
        m_outcome = choice;
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

// The toolkit lets the button be pressed only for a name that exists as it is.
void CFileDialog::AllowCompletedName() {
    if (!GetCompletedName().isEmpty()) {
        findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->setEnabled(true);
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
    const QPointer<QMessageBox> box(
        new QMessageBox(QMessageBox::Warning, windowTitle(), {}, QMessageBox::Ok, this));
    box->setTextFormat(Qt::PlainText);
    box->setText(QStringLiteral("%1\nThe folder was not found.").arg(file.path()));
    box->exec();
    delete box;
    return false;
}

panel::FileOutcome CFileDialog::TakeChoice() const {
    std::string path = FromQt(QDir::cleanPath(selectedFiles().value(0)));
    return path.size() < m_dialog.pathCapacity
               ? panel::FileOutcome::Accepted(std::move(path))
               : panel::FileOutcome::Failed(panel::kFilePathTooLong);
}

panel::FileOutcome RunFileDialog(const panel::FileDialog& dialog, CFileDialog::Kind kind,
                                 QWidget* owner) {
    const CArrowCursor arrow;
    const QPointer<CFileDialog> window(new CFileDialog(dialog, kind, owner));
    const panel::FileOutcome outcome = window->Run();
    delete window;
    return outcome;
}

}

#pragma once

#include "tests/frontend/conformance/FrontEndDriver.h"

#include <QFileDialog>
#include <QPointer>

#include <memory>

class QLineEdit;

namespace qttests {

/// Eyes and hands of a user on the toolkit's own file dialog.
class CFileDialogUser final : public conformance::IFileDialogUser {
public:
    explicit CFileDialogUser(QFileDialog& dialog);
    ~CFileDialogUser() override;

    conformance::IViewUser& Options() override { return *m_options; }
    bool Accept(const std::string& path) override;
    void Cancel() override;

    std::string ShownTitle() override;
    std::string ShownName() override;
    std::vector<std::string> ShownFilters() override;

    /// The button, and Return in the field for the name; with what follows from it. The dialog may
    /// be gone afterwards.
    void PressAccept();
    void PressReturn();
    void SetName(const std::string& name);

private:
    QLineEdit& NameField() const;

    QPointer<QFileDialog> m_dialog;
    std::unique_ptr<conformance::IViewUser> m_options; // null without options
};

}

#include "workstation/StatusLine.h"

#include "workstation/Text.h"

#include <QLabel>
#include <QProgressBar>

#include <algorithm>

namespace workstation {

namespace {

// Operations that follow each other must not make the line flicker.
constexpr int kLingerMs = 300;
constexpr int kProgressWidth = 140;
constexpr int kSideMargin = 8;
constexpr int kWhole = 1000;

QLabel& MakeLabel(const char* name) {
    auto* const label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    // Long messages must not widen the window.
    label->setMinimumWidth(1);
    return *label;
}

}

CStatusLine::CStatusLine(QWidget* parent)
    : QStatusBar(parent),
      m_device(MakeLabel("device")),
      m_operation(MakeLabel("operation")),
      m_progress(*new QProgressBar),
      m_polling(MakeLabel("polling")) {
    m_progress.setObjectName("progress");
    m_progress.setRange(0, kWhole);
    m_progress.setFixedWidth(kProgressWidth);
    m_progress.setMaximumHeight(fontMetrics().height());
    m_progress.hide();
    setContentsMargins(kSideMargin, 0, 0, 0);
    m_operation.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addWidget(&m_device);
    addWidget(&m_operation, 1);
    addPermanentWidget(&m_progress);
    addPermanentWidget(&m_polling);
    m_clearing.setParent(this);
    m_clearing.setObjectName("clearing");
    m_clearing.setSingleShot(true);
    m_clearing.setInterval(kLingerMs);
    connect(&m_clearing, &QTimer::timeout, this, [this] { Clear(); });
}

void CStatusLine::ShowDevice(const QString& name, bool isConnected) {
    if (name.isEmpty()) {
        m_device.setText("No device connected");
    } else {
        m_device.setText(name + (isConnected ? " connected" : " does not answer"));
    }
}

void CStatusLine::ShowPolling(bool isOn) {
    m_polling.setText(isOn ? "Phone polling: on" : "Phone polling: suspended");
}

void CStatusLine::ShowOperation(std::string_view operation) {
    m_clearing.stop();
    m_operationLasts = true;
    m_operation.setText(QString::fromStdString(DescribeOperation(operation)) + QChar(0x2026));
}

void CStatusLine::ShowProgress(const std::string& text, std::uint32_t done, std::uint32_t total) {
    m_operation.setText(QString::fromStdString(text).simplified());
    if (total != 0) {
        m_progress.setValue(
            static_cast<int>(std::uint64_t{kWhole} * std::min(done, total) / total));
        m_progress.show();
    }
    // What a lasting operation has reached stays until the operation ends.
    if (!m_operationLasts) {
        m_clearing.start();
    }
}

void CStatusLine::EndOperation() {
    m_operationLasts = false;
    m_clearing.start();
}

void CStatusLine::Clear() {
    m_operation.clear();
    m_progress.hide();
    m_progress.reset();
}

}

#include "workstation/DevicePane.h"

#include "frontend/qt/CommandEvent.h"
#include "workstation/Text.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace workstation {

namespace {

constexpr int kListWidth = 150;

QListWidgetItem* ItemOf(const CDevicePane::Folder& folder) {
    auto* const item = new QListWidgetItem(NameOf(folder));
    item->setToolTip(QString::fromStdString(folder.string()));
    return item;
}

}

CDevicePane::CDevicePane(QWidget* parent)
    : QWidget(parent),
      m_list(*new QListWidget),
      m_connectButton(*new QPushButton("C&onnect")),
      m_disconnectButton(*new QPushButton("Disco&nnect")) {
    auto* const label = new QLabel("De&vices");
    label->setBuddy(&m_list);
    m_list.setObjectName("devices");
    m_list.setFixedWidth(kListWidth);
    m_connectButton.setObjectName("connect");
    m_disconnectButton.setObjectName("disconnect");
    auto* const column = new QVBoxLayout(this);
    for (QWidget* widget :
         {static_cast<QWidget*>(label), static_cast<QWidget*>(&m_list),
          static_cast<QWidget*>(&m_connectButton), static_cast<QWidget*>(&m_disconnectButton)}) {
        column->addWidget(widget);
    }
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    connect(&m_list, &QListWidget::itemActivated, [this] { ConnectCurrent(); });
    connect(&m_list, &QListWidget::currentRowChanged, [this] { UpdateButtons(); });
    connect(&m_connectButton, &QPushButton::clicked, [this] { ConnectCurrent(); });
    UpdateButtons();
}

void CDevicePane::OnConnect(std::function<void(const Folder&)> connect) {
    m_connect = std::move(connect);
}

void CDevicePane::OnDisconnect(std::function<void()> disconnect) {
    connect(&m_disconnectButton, &QPushButton::clicked, [this, disconnect = std::move(disconnect)] {
        if (qt::MayCommand(*this)) {
            disconnect();
        }
    });
}

void CDevicePane::ShowDevices(const std::vector<Folder>& folders) {
    const Folder chosen = m_list.currentItem() ? FolderAt(m_list.currentRow()) : Folder();
    m_list.clear();
    m_folders = folders;
    for (const Folder& folder : folders) {
        m_list.addItem(ItemOf(folder));
    }
    Choose(chosen);
    Mark(m_connected, m_isGone);
}

void CDevicePane::Choose(const Folder& folder) {
    for (int row = 0; row < m_list.count(); ++row) {
        if (FolderAt(row) == folder) {
            m_list.setCurrentRow(row);
        }
    }
}

void CDevicePane::Mark(const Folder& connected, bool isGone) {
    m_connected = connected;
    m_isGone = isGone;
    for (int row = 0; row < m_list.count(); ++row) {
        QListWidgetItem& item = *m_list.item(row);
        QFont font = m_list.font();
        font.setBold(IsConnected(row));
        item.setFont(font);
        item.setText(NameOf(FolderAt(row)) + (IsConnected(row) && isGone ? " (gone)" : ""));
    }
    UpdateButtons();
}

bool CDevicePane::IsConnected(int row) const {
    return !m_connected.empty() && FolderAt(row) == m_connected;
}

void CDevicePane::ConnectCurrent() {
    if (m_list.currentItem() && m_connect && qt::MayCommand(*this)) {
        // A copy: the device that is connected may have the folders listed anew.
        const Folder folder = FolderAt(m_list.currentRow());
        m_connect(folder);
    }
}

void CDevicePane::UpdateButtons() {
    const bool hasChoice = m_list.currentItem() != nullptr;
    const bool bringsBack = hasChoice && m_isGone && IsConnected(m_list.currentRow());
    m_connectButton.setText(bringsBack ? "Rec&onnect" : "C&onnect");
    m_connectButton.setEnabled(hasChoice);
    m_disconnectButton.setEnabled(!m_connected.empty());
}

}

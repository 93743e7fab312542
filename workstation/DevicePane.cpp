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
constexpr int kFolderRole = Qt::UserRole;

CDevicePane::Folder FolderOf(const QListWidgetItem& item) {
    return item.data(kFolderRole).toString().toStdString();
}

QListWidgetItem* ItemOf(const CDevicePane::Folder& folder) {
    auto* const item = new QListWidgetItem(NameOf(folder));
    item->setData(kFolderRole, QString::fromStdString(folder.string()));
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
    const QListWidgetItem* const before = m_list.currentItem();
    const Folder chosen = before ? FolderOf(*before) : Folder();
    m_list.clear();
    for (const Folder& folder : folders) {
        m_list.addItem(ItemOf(folder));
    }
    Choose(chosen);
    Mark(m_connected, m_isGone);
}

void CDevicePane::Choose(const Folder& folder) {
    for (int row = 0; row < m_list.count(); ++row) {
        if (FolderOf(*m_list.item(row)) == folder) {
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
        font.setBold(IsConnected(item));
        item.setFont(font);
        item.setText(NameOf(FolderOf(item)) + (IsConnected(item) && isGone ? " (gone)" : ""));
    }
    UpdateButtons();
}

bool CDevicePane::IsConnected(const QListWidgetItem& item) const {
    return !m_connected.empty() && FolderOf(item) == m_connected;
}

void CDevicePane::ConnectCurrent() {
    if (m_list.currentItem() && m_connect && qt::MayCommand(*this)) {
        m_connect(FolderOf(*m_list.currentItem()));
    }
}

void CDevicePane::UpdateButtons() {
    const QListWidgetItem* const current = m_list.currentItem();
    const bool bringsBack = current && m_isGone && IsConnected(*current);
    m_connectButton.setText(bringsBack ? "Rec&onnect" : "C&onnect");
    m_connectButton.setEnabled(current);
    m_disconnectButton.setEnabled(!m_connected.empty());
}

}

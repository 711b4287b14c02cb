#include "viewer/app/panes/RigCards.h"

#include "simulator/device/SimulatedBody.h"
#include "viewer/messages/Translated.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

constexpr int SlotsOfKind = 16; // more than any camera has
constexpr quint32 RecordFrames = 100;

QString titleOf(StorageKind kind, int slot) {
    switch (kind) {
    case StorageKind::SDCard:
        return translated("SD card %1").arg(slot + 1);
    case StorageKind::DockStore:
        return QStringLiteral("DockStore %1").arg(slot + 1);
    case StorageKind::CFast:
        break;
    }
    return QStringLiteral("CFast %1").arg(slot + 1);
}

} // namespace

RigCards::RigCards(const Attempt& attempt)
    : QGroupBox(translated("Cards")), m_attempt(attempt), m_slot(new QComboBox), m_insert(new QPushButton),
      m_record(new QPushButton(translated("Record on it"))),
      m_protected(new QCheckBox(translated("Write protected"))) {
    auto* const form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_insert);
    buttons->addWidget(m_record);
    form->addRow(translated("Slot"), m_slot);
    form->addRow(buttons);
    form->addRow(m_protected);
    connect(m_slot, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] { setBody(m_body); });
    connect(m_insert, &QPushButton::clicked, this, [this] {
        m_attempt([this] {
            StorageUnit& storage = *m_body->storage();
            storage.slot(kind(), slot()).inserted ? storage.pull(kind(), slot())
                                                  : storage.putBack(kind(), slot());
        });
    });
    connect(m_record, &QPushButton::clicked, this, [this] {
        StorageRecord record;
        record.name = translated("Recording %1").arg(++m_number);
        record.frames = RecordFrames;
        m_attempt([this, record] { m_body->storage()->fill(kind(), slot(), record); });
    });
    connect(m_protected, &QCheckBox::clicked, this, [this](bool on) {
        m_attempt([this, on] { m_body->storage()->setProtected(kind(), slot(), on); });
    });
}

StorageKind RigCards::kind() const { return StorageKind(m_slot->currentData().toInt() / SlotsOfKind); }

int RigCards::slot() const { return m_slot->currentData().toInt() % SlotsOfKind; }

void RigCards::fill() {
    const QSignalBlocker blocker(m_slot);
    m_slot->clear();
    for (const StorageKind kind : {StorageKind::SDCard, StorageKind::DockStore, StorageKind::CFast}) {
        for (int slot = 0; m_body && m_body->storage() && slot < m_body->storage()->slotCount(kind); ++slot) {
            m_slot->addItem(titleOf(kind, slot), int(kind) * SlotsOfKind + slot);
        }
    }
}

void RigCards::setBody(SimulatedBody* body) {
    if (body != m_body) {
        m_body = body;
        fill();
    }
    setVisible(m_slot->count() > 0);
    if (m_slot->count() == 0) {
        return;
    }
    const CardSlot card = m_body->storage()->slot(kind(), slot());
    m_insert->setText(card.inserted ? translated("Pull") : translated("Insert"));
    m_record->setEnabled(card.inserted && !card.writeProtected);
    m_protected->setEnabled(card.inserted);
    m_protected->setChecked(card.writeProtected);
}

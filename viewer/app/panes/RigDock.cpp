#include "viewer/app/panes/RigDock.h"

#include "simulator/device/Rig.h"
#include "simulator/settings/SettingBehavior.h"
#include "viewer/app/look/Icons.h"
#include "viewer/app/panes/RigCards.h"
#include "viewer/messages/Translated.h"
#include "viewer/views/DocumentText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum Column { Name, Link, State };

// The rows of the settings that the camera's back has buttons for.
QList<const Setting*> backSettings() {
    QList<const Setting*> settings;
    for (const Setting& row : SettingTable::rows()) {
        if (SettingBehaviors::of(row).offers) {
            settings.append(&row);
        }
    }
    return settings;
}

QString valueText(const Setting& setting, const QVariant& value) {
    const QLatin1String key(setting.key);
    if (setting.kind == Setting::Kind::OnOff) {
        return value.toBool() ? translated("On") : translated("Off");
    }
    if (setting.kind == Setting::Kind::Size) {
        return DocumentText::resolution(value.toSize());
    }
    if (key == QLatin1String("rate")) {
        return DocumentText::rate(value.toUInt());
    }
    if (key == QLatin1String("shutter")) {
        return DocumentText::shutter(value.toUInt());
    }
    return value.toInt() == 0 ? translated("Off") : QStringLiteral("%1 %").arg(value.toInt());
}

QString linkText(const SimulatedBody& body) {
    if (body.isDummy()) {
        return translated("Dummy");
    }
    if (!body.isPlugged()) {
        return translated("Unplugged");
    }
    return body.isConnected() ? translated("Connected") : translated("Plugged");
}

QDoubleSpinBox* numberBox(double min, double max, const QString& unit) {
    auto* const box = new QDoubleSpinBox;
    box->setRange(min, max);
    box->setDecimals(0);
    box->setSuffix(QLatin1Char(' ') + unit);
    return box;
}

} // namespace

RigDock::RigDock(Rig& rig, QWidget* parent) : QWidget(parent), m_rig(rig) {
    build();
    connect(&m_rig, &CameraSource::bodyAdded, this, [this] { fillList(); });
    // Emitted while the body still exists.
    connect(&m_rig, &Rig::bodyRemoved, this,
            [this] { QMetaObject::invokeMethod(this, &RigDock::fillList, Qt::QueuedConnection); });
    // Many cameras change at the same time.
    for (QTimer* const timer : {&m_refreshSoon, &m_valuesSoon}) {
        timer->setSingleShot(true);
    }
    connect(&m_refreshSoon, &QTimer::timeout, this, &RigDock::refresh);
    connect(&m_valuesSoon, &QTimer::timeout, this, &RigDock::refreshValues);
    const auto soon = [this] { m_refreshSoon.start(0); };
    connect(&m_rig, &Rig::linkChanged, this, soon);
    connect(&m_rig, &Rig::stateChanged, this, soon);
    connect(&m_rig, &Rig::infoChanged, this, soon);
    connect(&m_rig, &Rig::settingsChanged, this, [this] { m_valuesSoon.start(0); });
}

void RigDock::build() {
    const int row = m_list ? m_list->indexOfTopLevelItem(m_list->currentItem()) : 0;
    qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
    delete layout();
    m_list = new QTreeWidget;
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setHeaderLabels({translated("Camera"), translated("Link"), translated("State")});
    m_list->header()->setSectionResizeMode(Name, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(Link, QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(State, QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(false);
    m_list->setMinimumHeight(90);
    m_list->setAccessibleName(translated("Cameras"));

    m_controls = new QWidget;
    auto* const controls = new QVBoxLayout(m_controls);
    controls->setContentsMargins(6, 6, 6, 6);
    controls->addWidget(buildCamera());
    controls->addWidget(buildFaults());
    m_cards = new RigCards([this](const std::function<void()>& action) { attempt(action); });
    controls->addWidget(m_cards);
    controls->addWidget(buildBack());
    m_status = new QLabel;
    m_status->setObjectName(QStringLiteral("dim"));
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    controls->addWidget(m_status);
    controls->addStretch();
    auto* const scroll = new QScrollArea;
    scroll->setWidget(m_controls);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(m_list, 1);
    rows->addWidget(scroll, 3);
    connect(m_list, &QTreeWidget::currentItemChanged, this, [this] {
        refreshHeads();
        refresh();
    });
    fillList();
    m_list->setCurrentItem(m_list->topLevelItem(qMax(0, row)));
}

QWidget* RigDock::buildCamera() {
    auto* const group = new QGroupBox;
    m_camera = group;
    auto* const form = new QFormLayout(group);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_plug = new QPushButton;
    m_power = new QPushButton;
    m_trigger = new QPushButton(translated("Trigger pulse"));
    m_trigger->setToolTip(
        translated("A pulse at the trigger socket; the preferences say whether it counts."));
    m_heat = numberBox(-20, 120, QStringLiteral("\u00b0C"));
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_plug);
    buttons->addWidget(m_power);
    form->addRow(buttons);
    form->addRow(m_trigger);
    form->addRow(translated("Temperature"), m_heat);
    connect(m_plug, &QPushButton::clicked, this, [this] {
        SimulatedBody* const body = current();
        attempt([body] {
            if (body->isPlugged()) {
                body->unplug();
            } else {
                body->plug();
                body->connectLink().result(); // as the viewer does with a camera that it knows
            }
        });
    });
    connect(m_power, &QPushButton::clicked, this, [this] {
        SimulatedBody* const body = current();
        attempt([body] { body->state() == CameraState::Off ? body->powerOn() : body->powerOff(); });
    });
    connect(m_trigger, &QPushButton::clicked, this, [this] { emit triggerPulse(current()); });
    connect(m_heat, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this](double value) {
        attempt([this, value] { current()->set(QStringLiteral("temperature"), value); });
    });
    return group;
}

QWidget* RigDock::buildFaults() {
    auto* const group = new QGroupBox(translated("Faults"));
    auto* const form = new QFormLayout(group);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_delay = numberBox(0, 10000, translated("ms"));
    m_delay->setSingleStep(50);
    m_refuse = new QSpinBox;
    m_refuse->setRange(1, 100);
    m_refuse->setToolTip(translated("How many commands"));
    m_refuse->setAccessibleName(m_refuse->toolTip());
    m_refuseNext = new QPushButton(translated("Refuse the next commands"));
    m_unplugNext = new QCheckBox(translated("Unplug during the next command"));
    m_phase = new QCheckBox(translated("Phase warning"));
    auto* const refuse = new QHBoxLayout;
    refuse->addWidget(m_refuseNext, 1);
    refuse->addWidget(m_refuse);
    form->addRow(translated("Delay of commands"), m_delay);
    form->addRow(refuse);
    form->addRow(m_unplugNext);
    form->addRow(m_phase);
    connect(m_delay, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this](double value) { attempt([this, value] { current()->faults().delayMs = value; }); });
    connect(m_refuseNext, &QPushButton::clicked, this, [this] {
        attempt([this] { current()->faults().refuseNext(m_refuse->value(), reason("The camera is busy.")); });
        m_status->setText(translated("The next %1 commands will be refused.").arg(m_refuse->value()));
    });
    connect(m_unplugNext, &QCheckBox::clicked, this,
            [this](bool on) { attempt([this, on] { current()->faults().unplugDuringNext = on; }); });
    connect(m_phase, &QCheckBox::clicked, this,
            [this](bool on) { attempt([this, on] { current()->set(QStringLiteral("outOfPhase"), on); }); });
    return group;
}

QWidget* RigDock::buildBack() {
    auto* const group = new QGroupBox(translated("Buttons on the camera's back"));
    auto* const form = new QFormLayout(group);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_head = new QComboBox;
    m_setting = new QComboBox;
    m_value = new QComboBox;
    m_value->setMaxVisibleItems(20);
    m_press = new QPushButton(translated("Press"));
    for (const Setting* const setting : backSettings()) {
        m_setting->addItem(translated(setting->words), QLatin1String(setting->key));
    }
    form->addRow(translated("Head"), m_head);
    form->addRow(translated("Setting"), m_setting);
    form->addRow(translated("Value"), m_value);
    form->addRow(m_press);
    connect(m_head, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &RigDock::refreshValues);
    connect(m_setting, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &RigDock::refreshValues);
    connect(m_press, &QPushButton::clicked, this, &RigDock::press);
    return group;
}

SimulatedBody* RigDock::current() const {
    const QList<SimulatedBody*> bodies = m_rig.bodies();
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    return row >= 0 && row < bodies.size() ? bodies.at(row) : nullptr;
}

SimulatedHead* RigDock::currentHead() const {
    const SimulatedBody* const body = current();
    const int index = m_head->currentIndex();
    return body && index >= 0 && index < body->heads().size() ? body->heads().at(index) : nullptr;
}

void RigDock::select(const CameraBody* body) {
    const QList<SimulatedBody*> bodies = m_rig.bodies();
    for (int i = 0; i < bodies.size(); ++i) {
        if (bodies.at(i) == body) {
            m_list->setCurrentItem(m_list->topLevelItem(i));
        }
    }
}

void RigDock::fillList() {
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    {
        const QSignalBlocker blocker(m_list);
        m_list->clear();
        for (int i = 0; i < m_rig.bodies().size(); ++i) {
            m_list->addTopLevelItem(new QTreeWidgetItem);
        }
        m_list->setCurrentItem(m_list->topLevelItem(qBound(0, row, m_list->topLevelItemCount() - 1)));
    }
    refreshHeads();
    refresh();
}

// With each cell that changes, a column as wide as its texts would measure them all anew.
void RigDock::refreshList() {
    QHeaderView* const header = m_list->header();
    for (const Column column : {Link, State}) {
        header->setSectionResizeMode(column, QHeaderView::Fixed);
    }
    const QList<SimulatedBody*> bodies = m_rig.bodies();
    for (int i = 0; i < qMin(bodies.size(), m_list->topLevelItemCount()); ++i) {
        QTreeWidgetItem* const item = m_list->topLevelItem(i);
        item->setText(Name, bodies.at(i)->name());
        item->setText(Link, linkText(*bodies.at(i)));
        item->setText(State,
                      bodies.at(i)->isDummy() ? QString() : DocumentText::cameraState(bodies.at(i)->state()));
    }
    for (const Column column : {Link, State}) {
        header->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    }
}

void RigDock::refresh() {
    refreshList();
    SimulatedBody* const body = current();
    m_controls->setEnabled(body && !body->isDummy());
    m_cards->setBody(body);
    // Whom the buttons below mean.
    m_camera->setTitle(
        body ? QStringLiteral("%1: %2").arg(
                   translated("Camera"), QString(body->name()).replace(QLatin1Char('&'), QLatin1String("&&")))
             : translated("Camera"));
    if (!body) {
        return;
    }
    for (int i = 0; i < qMin(m_head->count(), body->heads().size()); ++i) {
        m_head->setItemText(i, body->head(i)->fullName()); // a camera can be renamed
    }
    m_plug->setText(body->isPlugged() ? translated("Unplug") : translated("Plug in"));
    m_plug->setIcon(Icons::get(body->isPlugged() ? QStringLiteral("unplug") : QStringLiteral("plug")));
    m_power->setText(body->state() == CameraState::Off ? translated("Switch on") : translated("Switch off"));
    for (auto [box, value] :
         {std::pair(m_heat, body->temperature()), std::pair(m_delay, body->faults().delayMs)}) {
        const QSignalBlocker blocker(box);
        box->setValue(value);
    }
    m_unplugNext->setChecked(body->faults().unplugDuringNext);
    m_phase->setChecked(body->isOutOfPhase());
    m_phase->setEnabled(body->model().supports(CameraFunction::LinkAdjustment));
}

void RigDock::refreshHeads() {
    {
        const QSignalBlocker blocker(m_head);
        m_head->clear();
        if (const SimulatedBody* const body = current()) {
            for (const SimulatedHead* const head : body->heads()) {
                m_head->addItem(head->fullName());
            }
        }
    }
    refreshValues();
}

void RigDock::refreshValues() {
    const QVariant before = m_value->currentData();
    m_value->clear();
    const SimulatedHead* const head = currentHead();
    const Setting* const setting = SettingTable::find(m_setting->currentData().toString());
    if (head && setting) {
        for (const QVariant& value : SettingBehaviors::of(*setting).offers(*head)) {
            m_value->addItem(valueText(*setting, value), value);
        }
        m_value->setCurrentIndex(qMax(0, m_value->findData(before)));
    }
    m_press->setEnabled(m_value->count() > 0);
}

void RigDock::attempt(const std::function<void()>& action) {
    if (!current()) {
        return;
    }
    try {
        m_status->clear();
        action();
    } catch (const CameraError& error) {
        m_status->setText(translated(error.reason()));
        qWarning().noquote() << error.camera() + QLatin1Char(':') << error.reason().english();
    }
    refresh();
}

void RigDock::press() {
    SimulatedHead* const head = currentHead();
    if (!head) {
        return;
    }
    const QVariant value = m_value->currentData();
    const QString key = m_setting->currentData().toString();
    attempt([=] {
        if (head->changeFromOutside(key, value) == CommandResult::Clamped) {
            m_status->setText(translated("The camera took another value."));
        }
    });
}

void RigDock::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        build();
    }
}

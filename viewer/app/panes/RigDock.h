#pragma once

#include <QTimer>
#include <QVariant>
#include <QWidget>

class CameraBody;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QSpinBox;
class QTreeWidget;
class Rig;
class RigCards;
class SimulatedBody;
class SimulatedHead;

/// What one can do to the simulated cameras with one's hands: cable, power switch, heat, faults, and the
/// buttons on a camera's own back, whose changes the panel is not asked about.
class RigDock : public QWidget {
    Q_OBJECT

public:
    explicit RigDock(Rig& rig, QWidget* parent = nullptr);

    /// The camera whose controls show.
    void select(const CameraBody* body);

signals:
    /// A pulse came in at the trigger socket of a camera.
    void triggerPulse(CameraBody* body);

protected:
    void changeEvent(QEvent* event) override;

private:
    SimulatedBody* current() const;
    SimulatedHead* currentHead() const;
    void build();
    QWidget* buildCamera();
    QWidget* buildFaults();
    QWidget* buildBack();
    void fillList();
    void refresh();
    void refreshList();
    void refreshHeads();
    void refreshValues();
    void attempt(const std::function<void()>& action);
    void press();

    Rig& m_rig;
    QTimer m_refreshSoon;
    QTimer m_valuesSoon;
    QTreeWidget* m_list = nullptr;
    QWidget* m_controls = nullptr;
    QGroupBox* m_camera = nullptr;
    QPushButton* m_plug = nullptr;
    QPushButton* m_power = nullptr;
    QPushButton* m_trigger = nullptr;
    QDoubleSpinBox* m_heat = nullptr;
    QDoubleSpinBox* m_delay = nullptr;
    QSpinBox* m_refuse = nullptr;
    QPushButton* m_refuseNext = nullptr;
    QCheckBox* m_unplugNext = nullptr;
    QCheckBox* m_phase = nullptr;
    QComboBox* m_head = nullptr;
    QComboBox* m_setting = nullptr;
    QComboBox* m_value = nullptr;
    QPushButton* m_press = nullptr;
    RigCards* m_cards = nullptr;
    QLabel* m_status = nullptr;
};

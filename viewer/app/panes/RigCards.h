#pragma once

#include <QGroupBox>

#include <functional>

class QCheckBox;
class QComboBox;
class QPushButton;
class SimulatedBody;
enum class StorageKind;

/// The slots of a simulated camera, as a hand uses them: a card goes in and out, its lock moves, a record is
/// added.
class RigCards : public QGroupBox {
    Q_OBJECT

public:
    /// Runs an action and tells what fails.
    using Attempt = std::function<void(const std::function<void()>&)>;
    explicit RigCards(const Attempt& attempt);

    /// Null for none. Hidden for a camera without slots.
    void setBody(SimulatedBody* body);

private:
    void fill();
    StorageKind kind() const;
    int slot() const;

    Attempt m_attempt;
    SimulatedBody* m_body = nullptr;
    QComboBox* m_slot;
    QPushButton* m_insert;
    QPushButton* m_record;
    QCheckBox* m_protected;
    int m_number = 0; // of the records that were added
};

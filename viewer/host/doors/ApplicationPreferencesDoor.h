#pragma once

#include "viewer/host/HostWindow.h"
#include "viewer/host/doors/ApplicationWindowsDoor.h"
#include "viewer/overlay/InfoText.h"
#include "viewer/prefs/Preferences.h"
#include "viewer/recordings/TimeCodeRecord.h"

/// The preferences.
class ApplicationPreferencesDoor : public ApplicationWindowsDoor {
public:
    using ApplicationWindowsDoor::ApplicationWindowsDoor;

    QVariant getPrefDefault(const QString& key) override {
        OPERATION(key);
        return m_preferences.factoryDefault(key);
    }

    void removePref(const QString& key) override {
        OPERATION(key);
        m_preferences.remove(key);
    }

    QString getInfoItemLabel(const QString& key) override {
        OPERATION(key);
        return InfoText::label(key);
    }

    QString getDefaultInfoDisplay() override {
        OPERATION();
        return m_preferences.factoryDefault(QStringLiteral("info/display")).toString();
    }

    QVariant getPref(const QString& name, const QVariant& defaultValue) override {
        OPERATION(name, defaultValue);
        return m_preferences.value(name, defaultValue);
    }

    int getPrefInt(const QString& name, const QVariant& defaultValue) override {
        OPERATION(name, defaultValue);
        return m_preferences.value(name, defaultValue).toInt();
    }

    bool getPrefBool(const QString& name, const QVariant& defaultValue) override {
        OPERATION(name, defaultValue);
        return m_preferences.value(name, defaultValue).toBool();
    }

    float getPrefFloat(const QString& name, const QVariant& defaultValue) override {
        OPERATION(name, defaultValue);
        return m_preferences.value(name, defaultValue).toFloat();
    }

    QString getPrefString(const QString& name, const QVariant& defaultValue, int variant) override;

    void setPref(const QString& name, const QVariant& value) override {
        OPERATION(name, value);
        m_preferences.setValue(name, value);
    }

    void setPrefInt(const QString& name, int value) override {
        OPERATION(name, value);
        m_preferences.setValue(name, value);
    }

    void setPrefBool(const QString& name, bool value) override {
        OPERATION(name, value);
        m_preferences.setValue(name, value);
    }

    void setPrefFloat(const QString& name, float value) override {
        OPERATION(name, value);
        m_preferences.setValue(name, value);
    }

    void setPrefString(const QString& name, const QString& value) override {
        OPERATION(name, value);
        m_preferences.setValue(name, value);
    }

    bool isCameraNameFileEnabled() override;

    TimeCodeSetting getTimeCodeSetting() override {
        OPERATION();
        return TimeCodeRecord::fromMap(m_preferences.value(TimeCodeRecord::kPreference).toMap());
    }

    void setTimeCodeSetting(const TimeCodeSetting& setting) override {
        OPERATION();
        m_preferences.setValue(TimeCodeRecord::kPreference, TimeCodeRecord::toMap(setting));
    }

private:
    static constexpr char kInterface[] = "HostApplication";
};

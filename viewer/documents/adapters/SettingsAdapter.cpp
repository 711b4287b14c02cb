// The camera as such: names, versions, functions, power, network, Wi-Fi.

#include "viewer/documents/adapters/SettingsAdapter.h"

#include "livecontrol/interface/records.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CameraStorage.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/VariableRecords.h"
#include "viewer/documents/commands/CameraCommands.h"
#include "viewer/messages/Translated.h"

namespace {
constexpr char kInterface[] = "DOC_Settings";

// Function codes that plug-ins ask for.
enum FunctionCode {
    VariableCode = 14,
    WifiCode = 112,
    PowerOffCode = 117,
    RestartCode = 118,
    ExposureLimitCode = 145,
    CountsRecordsCode = 163,
    SerialCode = 167
};
} // namespace

FileDocument* AdapterBase::file() const {
    return m_document.kind() == Document::Kind::File ? static_cast<FileDocument*>(&m_document) : nullptr;
}

DeviceDocument* AdapterBase::device() const {
    switch (m_document.kind()) {
    case Document::Kind::Device:
        return static_cast<DeviceDocument*>(&m_document);
    case Document::Kind::Camera:
        return &static_cast<CameraDocument&>(m_document).device();
    default:
        return nullptr;
    }
}

QString SettingsAdapter::getIPAddress(bool device) {
    OPERATION(device);
    return body() ? body()->address() : QString();
}

QString SettingsAdapter::getCameraName(bool device) {
    OPERATION(device);
    if (body() == nullptr) {
        return file()->source()->info().camera;
    }
    return device ? body()->name() : document().title();
}

int SettingsAdapter::getImageScale() {
    OPERATION();
    return document().view().imageScale;
}

unsigned int SettingsAdapter::getPartitionRecordRate(PARTITIONNUMBER partition) {
    OPERATION(partition);
    if (head()) {
        return head()->recording(partition).settings.rate;
    }
    return partition == 1 ? document().recordedRate() : 0;
}

unsigned int SettingsAdapter::getRecordRate(int kind) {
    OPERATION(kind);
    return head() && list().mode() == HOST_MODE_LIVE ? head()->settings().rate : document().recordedRate();
}

QString SettingsAdapter::getDeviceName(bool device) {
    OPERATION(device);
    return body() ? body()->model().title : file()->source()->info().device;
}

int SettingsAdapter::getCameraIndex() {
    OPERATION();
    return device() ? list().devices().indexOf(device()) : -1;
}

int SettingsAdapter::getHeadNumber() {
    OPERATION();
    return document().kind() == Document::Kind::Camera && device()->hasSeveralHeads() ? head()->index() + 1
                                                                                      : 0;
}

QString SettingsAdapter::getHeadName(bool device) {
    OPERATION(device);
    return document().kind() == Document::Kind::Camera ? head()->name() : QString();
}

// A recording that stands alone is one partition.
PARTITIONNUMBER SettingsAdapter::getPartitionNumber(bool device) {
    OPERATION(device);
    return body() ? body()->partition() : 1;
}

void SettingsAdapter::refreshPartition(bool force) {
    OPERATION(force);
    document().setPlayPosition(document().playPosition()); // the other partition may hold fewer frames
    emit document().imageChanged(&document());
}

int SettingsAdapter::getPartitionCount(bool device, bool recordedOnly) {
    OPERATION(device, recordedOnly);
    if (head() == nullptr) {
        return recordedOnly && document().recordedFrames() == 0 ? 0 : 1;
    }
    int count = 0;
    for (int number = 1; number <= body()->partitionCount(); ++number) {
        count += recordedOnly && head()->recording(number).isEmpty() ? 0 : 1;
    }
    return count;
}

bool SettingsAdapter::isFunctionSupported(int code, bool device) {
    OPERATION(code, device);
    if (body() == nullptr || body()->isDummy()) {
        return false;
    }
    switch (code) {
    case PowerOffCode:
        return body()->model().supports(CameraFunction::PowerOff);
    case RestartCode:
        return body()->model().supports(CameraFunction::Restart);
    case SerialCode:
        return serialNumber() != 0;
    case WifiCode:
        return body()->wifi() != nullptr;
    case ExposureLimitCode:
        return body()->model().meter.upperLimit > 0;
    case CountsRecordsCode:
        return hasStorage(StorageKind::DockStore);
    case VariableCode:
        return body()->model().supports(CameraFunction::VariableChannels);
    default:
        return false;
    }
}

void SettingsAdapter::getPresetInfo(PresetInfo& info) {
    OPERATION();
    info = PresetInfo();
    if (body()) {
        info.count = body()->presetCount();
        info.selected = body()->currentPreset();
    }
}

void SettingsAdapter::loadPreset(int presetNo) {
    OPERATION(presetNo);
    const QString operation = CommandKey::LoadPreset;
    if (!body()) {
        refuse(operation, document().title(), reason("There are no presets."));
    }
    CameraCommands(operation).runBody(*body(),
                                      [presetNo](CameraBody& it) { return it.loadPreset(presetNo); });
}

void SettingsAdapter::storePreset(int presetNo) {
    OPERATION(presetNo);
    const QString operation = CommandKey::StorePreset;
    if (!body()) {
        refuse(operation, document().title(), reason("There are no presets."));
    }
    CameraCommands(operation).runBody(*body(),
                                      [presetNo](CameraBody& it) { return it.storePreset(presetNo); });
    emit list().told(translated("%1: the settings are stored as preset %2.")
                         .arg(body()->name(), QString::number(presetNo)));
}

bool SettingsAdapter::isSharedHeadSettings() {
    OPERATION();
    return device() && device()->hasSeveralHeads();
}

QString SettingsAdapter::getFirmwareVersion() {
    OPERATION();
    return body() ? body()->firmware() : QString();
}

QString SettingsAdapter::getSubFirmwareVersion() {
    OPERATION();
    return QString();
}

QString SettingsAdapter::getHeadFirmwareVersion() {
    OPERATION();
    return QString();
}

bool SettingsAdapter::isDummy() {
    OPERATION();
    return body() && body()->isDummy();
}

bool SettingsAdapter::is3D() {
    OPERATION();
    return false;
}

int SettingsAdapter::getHeadCount() {
    OPERATION();
    return device() ? device()->heads().size() : 1;
}

void SettingsAdapter::powerOff() {
    OPERATION();
    switchPower([](CameraBody& it) { return it.switchOff(); });
}

void SettingsAdapter::restartCamera() {
    OPERATION();
    switchPower([](CameraBody& it) { return it.restart(); });
}

// A command as any other: it needs the link, and the camera can refuse it.
void SettingsAdapter::switchPower(const CameraCommands::BodyCommand& command) {
    if (body() && list().mayLose({body()})) {
        CameraCommands(CommandKey::SwitchPower).runBody(*body(), command);
    }
}

bool SettingsAdapter::needsPowerWaitDialog() {
    OPERATION();
    return false;
}

void SettingsAdapter::setPowerOperating(bool operating) { OPERATION(operating); }

void SettingsAdapter::preparePowerOperation() { OPERATION(); }

void SettingsAdapter::getNetworkAddresses(QString& ip, QString& mask, QString& gateway) {
    OPERATION();
    ip = body() ? body()->address() : QString();
    mask = body() ? body()->mask() : QString();
    gateway = body() ? body()->gateway() : QString();
}

unsigned int SettingsAdapter::serialNumber() const {
    QString digits;
    const QString text = body() ? body()->serial() : QString();
    for (const QChar character : text) {
        if (character >= QLatin1Char('0') && character <= QLatin1Char('9')) {
            digits.append(character);
        }
    }
    return digits.right(9).toUInt();
}

unsigned int SettingsAdapter::getSerialNumber(bool device) {
    OPERATION(device);
    return serialNumber();
}

bool SettingsAdapter::isPresetLoadedAfterReboot() {
    OPERATION();
    return body() && body()->model().presetsNeedReboot;
}

int SettingsAdapter::getAutoExposureUpperLimit() {
    OPERATION();
    const int limit = body() ? int(body()->model().meter.upperLimit) : 0;
    return limit > 0 ? limit : 1 << document().bitDepth();
}

int SettingsAdapter::getLinkSpeedState() {
    OPERATION();
    return body() && body()->model().supports(CameraFunction::LinkSpeed) ? 1 : 0;
}

bool SettingsAdapter::isLowLight() {
    OPERATION();
    return head() && head()->isLowLight();
}

int SettingsAdapter::getLowLightType() {
    OPERATION();
    return head() ? head()->settings().lowLight.type : 0;
}

unsigned int SettingsAdapter::getCurrentVariableChannel() {
    OPERATION();
    return head() ? unsigned(head()->settings().channel) : 0;
}

void SettingsAdapter::getVariableChannelInfo(unsigned int channel, VariableChannelInfo& info) {
    OPERATION(channel);
    info = head() ? VariableRecords::info(*head(), channel) : VariableChannelInfo();
}

void SettingsAdapter::getVariableChannelText(unsigned int channel, QString& text, bool* registered,
                                             int kind) {
    OPERATION(channel, kind);
    text = head() ? VariableRecords::text(*head(), channel, list().displayFormat()) : QString();
    if (registered) {
        *registered = head() && VariableRecords::isStored(*head(), channel);
    }
}

bool SettingsAdapter::isValidVariableSize(unsigned int rate, unsigned int width, unsigned int height) {
    OPERATION(rate, width, height);
    return head() && VariableSize::isValid(head()->model(), rate, QSize(int(width), int(height)));
}

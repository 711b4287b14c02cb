#pragma once

#include "livecontrol/interface/DOC_Camera.h"
#include "livecontrol/interface/DOC_Display.h"
#include "livecontrol/interface/DOC_Lock.h"
#include "livecontrol/interface/DOC_Members.h"
#include "livecontrol/interface/DOC_Playback.h"
#include "livecontrol/interface/DOC_Save.h"
#include "livecontrol/interface/DOC_Transfer.h"
#include "livecontrol/interface/DeviceObject.h"
#include "viewer/documents/adapters/GeometryAdapter.h"
#include "viewer/documents/adapters/SettingsAdapter.h"

// The face of a document: what a plug-in calls. Each operation is recorded and leads to the Document behind
// it; the viewer itself never goes this way. What a document doesn't have gives a neutral value.

class TransferAdapter : public DOC_Transfer, private AdapterBase {
public:
    explicit TransferAdapter(Document& document) : AdapterBase(document) {}

    void prepareShutdown(bool stopTransfer, bool closeView, bool wait) override;
    void restartTransfer(bool wait) override;
    void beginViewSelection() override;
    bool isSuspendReduce() override;
    void endViewSelection() override;
};

class LockFace : public DOC_Lock, private AdapterBase {
public:
    explicit LockFace(Document& document) : AdapterBase(document) {}

    bool isQmonLocked() override;
};

class PlaybackAdapter : public DOC_Playback, private AdapterBase {
public:
    explicit PlaybackAdapter(Document& document) : AdapterBase(document) {}

    bool isPlaying() override;
    unsigned int getPartitionFrames(PARTITIONNUMBER partition, int kind) override;
};

class SaveAdapter : public DOC_Save, private AdapterBase {
public:
    explicit SaveAdapter(Document& document) : AdapterBase(document) {}

    void setSavePartition(PARTITIONNUMBER partition) override;
    void resetSaveFlags() override;
    QSize getImageSize(int saveType, PARTITIONNUMBER partition, int kind) override;
    void setSaveInfo(bool on) override;
    void setSaveCorrect(bool on) override;
    void setSaveScale(bool on) override;
    void refreshCameraSettings(bool force) override;
    QString composeSaveSuffix(int saveType, PARTITIONNUMBER partition, int session, bool& used,
                              const QDateTime& dateTime) override;
    int getCameraCount() override;

private:
    template <class Member, class Value>
    void set(Member member, const Value& value);
};

class DisplayAdapter : public DOC_Display, private AdapterBase {
public:
    explicit DisplayAdapter(Document& document) : AdapterBase(document) {}

    bool isToolApplied(const QString& name, bool flag) override;
    bool isToolActive(const QString& name) override;
    bool isMultiTrimming() override;
    void showNextTrimming() override;
    void showPreviousTrimming() override;
    QString getMultiTrimmingLabel() override;
    bool isSkipForAll() override;
    bool isSkipForFile() override;
    float getRotation() override;
    bool isFlipA() override;
    bool isFlipB() override;
    float getZoomFactor(bool flag) override;
    bool isLutCurve() override;
    int getBinningLevel() override;
};

class MembersAdapter : public DOC_Members, private AdapterBase {
public:
    explicit MembersAdapter(Document& document) : AdapterBase(document) {}

    bool isDeviceDocument() override;
    bool isHeadDocument() override;
    DOCKEY getDeviceKey() override;
    void setActiveHead(DOC_Interface* head) override;
    void onDeviceUnselected() override;
    void onDeviceSelected() override;
    void onHeadsChanged() override;
};

/// All interfaces of a document. `Base` is the first of them: DOC_Interface, or DOC_Camera for a camera.
template <class Base>
class DocumentAdapter : public Base,
                        public TransferAdapter,
                        public LockFace,
                        public PlaybackAdapter,
                        public GeometryAdapter,
                        public SettingsAdapter,
                        public SaveAdapter,
                        public DisplayAdapter,
                        public MembersAdapter {
public:
    explicit DocumentAdapter(Document& document)
        : TransferAdapter(document), LockFace(document), PlaybackAdapter(document), GeometryAdapter(document),
          SettingsAdapter(document), SaveAdapter(document), DisplayAdapter(document),
          MembersAdapter(document), m_document(document) {}

    QList<DOC_Interface*> getHeads(bool flag) override;
    void setConnected(bool connected) override;
    bool isConnected() override;
    void setSelected(bool selected) override;
    bool isSelected() override;
    bool isSelectedMulti() override;
    bool isRecordInMemory() override;
    bool isStandaloneKindA() override;
    bool isStandaloneKindB() override;
    bool isStandaloneKindC() override;
    QString getFilePath() override;
    QString getDisplayName() override;
    QString getBaseName() override;
    bool canDeleteFile() override;
    void deleteFile() override;
    bool isMobile() override;
    QString getPartitionName(PARTITIONNUMBER partition) override;
    void repaint(int kind, bool wait) override;
    QString getMediaName() override;
    bool hasImageScale(int kind) override;
    QString formatShutterSpeed(unsigned long value, int reserved) override;

protected:
    CallRecorder& recorder() const { return m_document.list().calls(); }

    Document& m_document;
};

class CameraFace final : public DocumentAdapter<DOC_Camera> {
public:
    using DocumentAdapter::DocumentAdapter;

    DeviceObject* getDevice() override;
};

/// Also what a plug-in gets as the device of a camera document.
class DeviceFace final : public DocumentAdapter<DOC_Camera>, public DeviceObject {
public:
    using DocumentAdapter::DocumentAdapter;

    DeviceObject* getDevice() override;
};

class FileFace final : public DocumentAdapter<DOC_Interface> {
public:
    using DocumentAdapter::DocumentAdapter;
};

#pragma once

#include "viewer/host/doors/DocumentsDoor.h"

/// Cards and drives of the cameras with recordings on them.
///
/// All stand in a camera, so their type is 1; the number of a drive is the index of its camera.
class DocumentDrivesDoor : public DocumentsDoor {
public:
    using DocumentsDoor::DocumentsDoor;

    uint getSDDriveMask() override {
        OPERATION();
        return m_drives.letters();
    }

    void openSDDrive(uint mask) override;
    bool getCurrentSDDrive(uint& mask) override;

    QList<QMap<QString, QString>> listDockStores() override {
        OPERATION();
        return list(StorageKind::DockStore);
    }

    void openDockStore(int type, int driveNo, int slotNo, const QString& name) override {
        OPERATION(type, driveNo, slotNo, name);
        open(m_drives.byNumber(StorageKind::DockStore, driveNo, slotNo));
    }

    // Without the passwords: the list of calls is shown.
    bool checkDockStorePassword(int type, int driveNo, const QString& password) override {
        OPERATION(type, driveNo);
        return m_drives.unlockStores(driveNo, password);
    }

    bool setDockStorePassword(int type, int driveNo, const QString& oldPassword,
                              const QString& newPassword) override {
        OPERATION(type, driveNo);
        return m_drives.setStoresPassword(driveNo, oldPassword, newPassword);
    }

    QList<QMap<QString, QString>> listCFastCards() override {
        OPERATION();
        return list(StorageKind::CFast);
    }

    void openCFastCard(int type, int driveNo, int slotNo, const QString& name) override {
        OPERATION(type, driveNo, slotNo, name);
        open(m_drives.byNumber(StorageKind::CFast, driveNo, slotNo));
    }

    bool getCurrentCFastCard(int& driveNo) override;
    void refreshDriveDocuments(int kind) override;

    void closeSDDocuments() override {
        OPERATION();
        m_drives.closeDocuments(StorageKind::SDCard);
    }

    void closeDockStoreRecords(int cameraIndex) override {
        OPERATION(cameraIndex);
        m_drives.closeDocuments(StorageKind::DockStore, cameraIndex);
    }

    void closeCFastDocuments(int reserved) override {
        OPERATION(reserved);
        m_drives.closeDocuments(StorageKind::CFast);
    }

    void closeCFastRecords(int cameraIndex) override {
        OPERATION(cameraIndex);
        m_drives.closeDocuments(StorageKind::CFast, cameraIndex);
    }

private:
    static constexpr char kInterface[] = "HostDocuments";

    QList<QMap<QString, QString>> list(StorageKind kind) const;
    void open(const CardDrives::Drive& drive);
};

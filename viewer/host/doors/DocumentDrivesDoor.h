#pragma once

#include "viewer/host/doors/DocumentsDoor.h"

/// Drives and cards with recordings. This program has none: lists are empty, nothing is open, and what
/// asks for one of them by name fails.
class DocumentDrivesDoor : public DocumentsDoor {
public:
    using DocumentsDoor::DocumentsDoor;

    uint getSDDriveMask() override { return OPERATION(); }

    void openSDDrive(uint mask) override {
        OPERATION(mask);
        missing();
    }

    bool getCurrentSDDrive(uint& mask) override { return OPERATION(mask); }
    QList<QMap<QString, QString>> listDockStores() override { return OPERATION(); }

    void openDockStore(int type, int driveNo, int slotNo, const QString& name) override {
        OPERATION(type, driveNo, slotNo, name);
        missing();
    }

    bool checkDockStorePassword(int type, int driveNo, const QString&) override {
        return OPERATION(type, driveNo);
    }

    bool setDockStorePassword(int type, int driveNo, const QString&, const QString&) override {
        return OPERATION(type, driveNo);
    }

    QList<QMap<QString, QString>> listCFastCards() override { return OPERATION(); }

    void openCFastCard(int type, int driveNo, int slotNo, const QString& name) override {
        OPERATION(type, driveNo, slotNo, name);
        missing();
    }

    bool getCurrentCFastCard(int& driveNo) override { return OPERATION(driveNo); }
    void refreshDriveDocuments(int kind) override { OPERATION(kind); }
    void closeSDDocuments() override { OPERATION(); }
    void closeDockStoreRecords(int cameraIndex) override { OPERATION(cameraIndex); }
    void closeCFastDocuments(int reserved) override { OPERATION(reserved); }
    void closeCFastRecords(int cameraIndex) override { OPERATION(cameraIndex); }

private:
    static constexpr char kInterface[] = "HostDocuments";

    [[noreturn]] static void missing() { throw DOC_Exception(QStringLiteral("There is no such drive."), 0); }
};

#pragma once

#include "simulator/device/Rig.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"

/// Four cameras on a stepped clock, all linked, and a dummy: "Mono" has most functions, "Colour" fewer and
/// other values, "Plain" none, "Twin" has the heads "L" and "R".
struct SmallRig {
    Rig rig{Clock::Mode::Stepped};
    CallRecorder calls;
    DocumentList list{rig, calls};

    SmallRig() {
        add("Mono", "mono12", 11);
        add("Colour", "colour8", 12);
        add("Plain", "plain", 13);
        add("Twin", "twin", 14, {QStringLiteral("L"), QStringLiteral("R")});
        rig.addDummy(QStringLiteral("Dummy"), QStringLiteral("999.999.999.1"));
        list.addAllCameras();
    }

    SimulatedBody* body(const char* name) const { return rig.findName(QLatin1String(name)); }
    CameraDocument* camera(const char* name, int head = 0) const { return list.find(body(name)->head(head)); }
    SimulatedHead& head(const char* name, int index = 0) const { return *body(name)->head(index); }
    void select(const QList<Document*>& documents) { list.setSelection(documents); }

private:
    void add(const char* name, const char* model, int number, const QStringList& heads = {}) {
        BodyDescription description;
        description.name = QLatin1String(name);
        description.model = QLatin1String(model);
        description.address = QStringLiteral("192.168.0.%1").arg(number);
        description.serial = QStringLiteral("SN-%1").arg(1000 + number);
        description.heads = heads;
        rig.addBody(description);
    }
};

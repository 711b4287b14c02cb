#pragma once

#include "viewer/cameras/CameraModel.h"

#include <QStringList>

#include <memory>

/// How a lens moves.
struct LensMotion {
    int focusShift = 0;     // by which the far end of the focus lies higher at the tele end
    double travelMs = 1000; // from one end of an axis to the other
    double commandMs = 10;  // that a command costs on top of the camera's own time
};

/// A kind of camera with what makes it move; read from a model file.
struct SimulatedModel : CameraModel {
    /// Time of a frame = frameOverheadUs + rows * (rowOverheadUs + columns * columnNs / 1000); the highest
    /// rate is its inverse, further limited by rateLimit.
    double frameOverheadUs = 5;
    double rowOverheadUs = 0.1;
    double columnNs = 0.3;
    quint32 rateLimit = 1000000;

    LensMotion lensMotion;

    // Slots for storage.
    int sdSlots = 0;
    int dockStoreSlots = 0;
    int cFastSlots = 0;

    double commandTimeMs = 5;
    double bootTimeMs = 800;
    double readyTimeMs = 60; // from the ready command to ready

    quint32 maxRate(const QSize& size) const override;

    /// The built-in models. Throws RigFileError if the model's file is wrong; null if there is none of that
    /// name.
    static std::shared_ptr<const SimulatedModel> find(const QString& id);
    static QStringList ids();
    /// From the text of a model file; the file name is for messages. Throws RigFileError.
    static std::shared_ptr<const SimulatedModel> parse(const QByteArray& text, const QString& fileName);
    /// The model of a camera of which only name and address are known: no lists, no functions.
    static std::shared_ptr<const SimulatedModel> dummy();
};

#include "viewer/cameras/CameraError.h"

CameraError::CameraError(Kind kind, const QString& function, const QString& camera, const Reason& reason)
    : m_kind(kind), m_function(function), m_camera(camera), m_reason(reason),
      m_what(QStringLiteral("%1: %2: %3").arg(camera, function, reason.english()).toStdString()) {}

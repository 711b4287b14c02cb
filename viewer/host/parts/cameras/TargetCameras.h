#pragma once

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/commands/CameraCommands.h"

/// The cameras that an operation means: a getter the current one, a setter those that are selected and
/// connected.
class TargetCameras {
public:
    /// The list is not owned and outlives it.
    explicit TargetCameras(DocumentList& documents) : m_documents(documents) {}

    /// The head of the current camera; null without one that is connected.
    CameraHead* head() const;
    /// The selected cameras, or only those that have the function.
    QList<CameraDocument*> all() const { return m_documents.targetCameras(); }
    QList<CameraDocument*> with(CameraFunction function) const;
    /// Those of these documents that are cameras.
    QList<CameraDocument*> of(const QList<DOC_Interface*>& documents) const;
    /// The function at the selected cameras against the current one, one of MULTIPLE_DOCS_*.
    int supportLevel(CameraFunction function) const;
    bool anyInState(CameraState state) const;
    bool anyInLowLight(bool on) const; // or out of it

    /// Those that have the function; refused if there is none.
    QList<CameraDocument*> required(CameraFunction function, const QString& operation) const;
    /// A command to all, or to these. Throws CameraFailure.
    void command(const CameraCommands::Command& command) const { CameraCommands().run(all(), command); }
    void command(CameraFunction function, const QString& operation,
                 const CameraCommands::Command& command) const {
        CameraCommands(operation).run(required(function, operation), command);
    }
    /// Throws the CameraFailure of a function that the current camera doesn't have.
    [[noreturn]] void refuse(const QString& operation) const;

private:
    DocumentList& m_documents;
};

#pragma once

#include "viewer/documents/DocumentList.h"

class CameraBody;

/// Finds cameras in the network, takes them into the list and links them. What fails is told in one
/// CameraFailure behind the last camera.
class CameraFinder {
public:
    explicit CameraFinder(DocumentList& documents) : m_documents(documents) {}

    /// The cameras at that address, or in its network if its last number is 0.
    void find(const QString& address);
    /// Links the cameras of the list that can be reached again.
    void update();
    /// Cameras by their hardware addresses, as a search gave them, or by their IP addresses.
    void connectCameras(const QStringList& ids);
    /// A camera by hand. An empty name leaves the camera its own.
    void add(const QString& name, const QString& address, bool isDummy, bool link);
    /// Name and addresses of a camera. Only what differs is sent.
    void edit(CameraBody& body, const QString& name, const QString& address, const QString& mask,
              const QString& gateway);
    /// The addresses of a camera that a search found by its hardware address, without a link.
    void assignNetwork(const QString& mac, const QString& address, const QString& mask,
                       const QString& gateway);
    /// What answers a search, as JSON: rows of id, name, model, address, mask, gateway, mac, adapter,
    /// adapteraddress, reachable, reason (why not), connected.
    QString searchResults() const;
    /// A name that no camera has.
    QString freeName() const;

private:
    void takeIn(const QList<CameraBody*>& bodies);

    DocumentList& m_documents;
};

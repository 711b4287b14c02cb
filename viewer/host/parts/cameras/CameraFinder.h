#pragma once

#include "viewer/cameras/Network.h"
#include "viewer/documents/DocumentList.h"

#include <functional>

class CameraBody;

/// Finds cameras in the network, takes them into the list and links them. What fails is told in one
/// CameraFailure after the last camera.
class CameraFinder {
public:
    explicit CameraFinder(DocumentList& documents) : m_documents(documents) {}

    /// The cameras at that address, or in its network if its last number is 0.
    void find(const QString& address);
    /// Links the cameras of the list that can be reached again.
    void update();
    /// Cameras by their hardware addresses, as a search gave them, or by their IP addresses.
    void connectCameras(const QStringList& ids);
    /// A camera by hand. An empty name leaves the camera its own. One that is in the list already keeps its
    /// name and is refused.
    void add(const QString& name, const QString& address, bool isDummy, bool link);
    /// Asked before a camera gets an address at which it can't be reached: its name and why. False leaves its
    /// address as it is.
    using MayLeave = std::function<bool(const QString& name, const Reason& why)>;
    /// Name and addresses of a camera. Only what differs is sent; an address of another camera of the list,
    /// or of this computer, is refused.
    void edit(CameraBody& body, const QString& name, const QString& address, const QString& mask,
              const QString& gateway, const MayLeave& mayLeave);
    /// Links a camera of the list at its new address. If it can't be reached there, which edit() has asked,
    /// it stays in the list without a link.
    void findAgain(CameraBody& body);
    /// The addresses of a camera that a search found by its hardware address, without a link. An address that
    /// another camera has is refused.
    void assignNetwork(const QString& mac, const QString& address, const QString& mask,
                       const QString& gateway, const MayLeave& mayLeave);
    /// What answers a search, as JSON; of the network of `place` alone, unless that is empty: rows of id,
    /// name, model, address, mask, gateway, mac, adapter, adapteraddress, reachable, reason (why not),
    /// connected.
    QString searchResults(const QString& place) const;
    /// A name that no camera has.
    QString freeName() const;
    /// The address itself if no camera of the list has it, or the next in its network that none has and that
    /// is not this computer's.
    QString freeAddress(const QString& wanted) const;

    /// Where a search looks, by the preferences of its way (1: in one network) and address; empty for
    /// everywhere.
    static QString placeOf(int way, const QString& address);
    /// Such as "192.168.0.*".
    static QString placeText(const QString& place);

private:
    static QString countText(int found, int listed);
    bool answers(const CameraBody& body) const;
    NetworkAdapter adapter() const; // of the cameras
    void takeIn(const QList<CameraBody*>& bodies);
    CameraBody& bodyToAdd(const QString& name, const QString& address, bool isDummy, bool link);
    void forgetUnlistedDummies();
    const CameraBody* listedAt(const QString& address) const;
    void requireFree(const QString& name, const QString& address) const;
    void requirePossible(const QString& name, const QString& address, const QString& mask) const;
    void requireChangeable(const CameraBody& body, const QString& address, const QString& mask) const;
    bool isWanted(const QString& name, const QString& address, const MayLeave& mayLeave) const;

    DocumentList& m_documents;
};

#pragma once

#include "viewer/host/doors/ApplicationPreferencesDoor.h"

/// The host object: what the plug-in calls. Each operation is recorded and is a thin door to a part; the
/// program itself uses the parts, so that the record shows the plug-in's calls alone.
///
/// Each door implements one interface, or a topic of a large one. They stand one above the other, in an order
/// of no meaning, because a host object is one object with twelve interfaces.
class ViewerHost final : public ApplicationPreferencesDoor {
public:
    using ApplicationPreferencesDoor::ApplicationPreferencesDoor;
};

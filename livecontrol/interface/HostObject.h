#pragma once

#include "livecontrol/interface/HostApplication.h"
#include "livecontrol/interface/HostCameraControl.h"
#include "livecontrol/interface/HostDocuments.h"
#include "livecontrol/interface/HostExporter.h"
#include "livecontrol/interface/HostHistory.h"
#include "livecontrol/interface/HostLens.h"
#include "livecontrol/interface/HostLive.h"
#include "livecontrol/interface/HostPlayer.h"
#include "livecontrol/interface/HostPlugins.h"
#include "livecontrol/interface/HostRecorder.h"
#include "livecontrol/interface/HostViews.h"
#include "livecontrol/interface/HostWindows.h"

/// All that a host offers, in one object. The host hands it to the plug-in's `init` and keeps it alive until
/// the plug-in is destroyed.
///
/// Where two interfaces declare the same operation (`isCycleView`), a call goes through a reference to one of
/// them. The order of the bases is part of the interface.
class HostObject : public HostApplication,
                   public HostPlugins,
                   public HostDocuments,
                   public HostLive,
                   public HostRecorder,
                   public HostPlayer,
                   public HostCameraControl,
                   public HostExporter,
                   public HostViews,
                   public HostLens,
                   public HostWindows,
                   public HostHistory {};

#pragma once

#include "livecontrol/plugin/host/HostApplication.h"
#include "livecontrol/plugin/host/HostCameraControl.h"
#include "livecontrol/plugin/host/HostDocuments.h"
#include "livecontrol/plugin/host/HostExporter.h"
#include "livecontrol/plugin/host/HostHistory.h"
#include "livecontrol/plugin/host/HostLens.h"
#include "livecontrol/plugin/host/HostLive.h"
#include "livecontrol/plugin/host/HostPlayer.h"
#include "livecontrol/plugin/host/HostPlugins.h"
#include "livecontrol/plugin/host/HostRecorder.h"
#include "livecontrol/plugin/host/HostViews.h"
#include "livecontrol/plugin/host/HostWindows.h"

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

#pragma once

#include <QString>
#include <functional>

class HostApplication;

/// Runs a job on a thread of the pool while the host shows a progress window with `text`, and returns once
/// the job has ended, whatever else fails meanwhile: it may work with what stands on the caller's stack, and
/// may wait for the GUI thread. GUI thread only. Throws what the job threw, or what the host throws.
void runOnPool(HostApplication& host, const QString& text, const std::function<void()>& job);

#pragma once

#include "viewer/cameras/Answer.h"
#include "viewer/cameras/CameraModel.h"
#include "viewer/cameras/settings/HeadSettings.h"

/// What each trigger mode records, and how its values clamp. Pure arithmetic: a model and settings in.
//
/// - start, center, end, manual: the whole memory once; after the trigger, half round it, before it, or
///   shared out.
/// - random: `randomFrames` after each trigger, until the memory is full or the count is reached.
/// - random reset: the same; the count of frames and their time begin anew at each trigger.
/// - random center, random manual: `randomFrames` round each trigger, up to the count.
/// - random loop: as random without end; the oldest recordings make room.
/// - two stage: the whole memory, half of it after the trigger. Before it every frame is kept, or each
/// second,
///   fourth or eighth.
/// - reset: as start, the count of frames and their time beginning anew.
/// - record on command: from one trigger to the next, at most the whole memory.
namespace TriggerRules {

/// Frames round a trigger.
struct Span {
    int before = 0; // at most
    int after = 0;
    int step = 1; // before the trigger every step-th frame is kept
};

Span span(const CameraModel& model, const HeadSettings& settings);
/// Several recordings lie in one memory.
bool isRandom(int mode);
/// The user shares the frames out before and after the trigger.
bool isShared(int mode);
/// Frames that lie before and after the trigger together: of the memory, or of one random recording.
int limit(const CameraModel& model, const HeadSettings& settings);
/// The same of a wish; a random recording without a length stands for the memory.
int limit(int mode, int randomFrames, int memoryFrames);
/// The frames are counted, and exposed, from the trigger on.
bool restartsAtTrigger(int mode);
/// A trigger ends what another one began.
bool endsByTrigger(int mode);
/// A recording that is stopped early, or is shorter than the memory, also keeps what the ring held before it.
bool keepsRing(int mode);
/// Whether another recording follows when there are that many.
bool wantsMore(const CameraModel& model, const HeadSettings& settings, int recordings);
/// Random recordings that the memory holds at the settings' length.
int fittingCount(const CameraModel& model, const HeadSettings& settings);

/// What holds its value when the limit changes: the frames before or after the trigger, or the share before
/// it.
enum Lock { LockBefore = 0, LockAfter = 1, LockPercent = 2 };
/// The frames after the trigger when the one that is locked holds its value; at least one.
int framesAfter(int limit, int lock, int before, int after, double percentBefore);
/// The same when a limit, of which so many frames lay after the trigger, has changed; they fit the new one.
int sharedAnew(int limit, int lock, int oldLimit, int oldAfter);

/// Values below 1 leave what is set. Clamped if the mode uses a value that did not fit.
CommandResult set(const CameraModel& model, HeadSettings& settings, int mode, int afterFrames,
                  int randomFrames, int randomCount);
/// After a change of the memory's length.
void settle(const CameraModel& model, HeadSettings& settings);

} // namespace TriggerRules

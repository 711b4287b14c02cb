#pragma once

/// An item of the information over the image. Key and label are ASCII; the label is the untranslated text,
/// the short one stands in front of a value and may be empty.
struct InfoItem {
    const char* key;
    const char* label;
    const char* shortLabel;
    bool live;   ///< offered in live mode
    bool memory; ///< offered in memory mode
    bool file;   ///< offered in file mode
    bool saved;  ///< offered for what is saved
};

/// Key of a separator in the table and in display lists.
inline constexpr char kInfoSeparator[] = "<hr>";

/// All items in the order in which a user finds them first, with separators between the groups. An empty key
/// ends the table.
inline constexpr InfoItem kInfoItems[] = {
    {"Camera name", "Camera name", "", true, true, false, true},
    {"File name", "File name", "", false, false, false, true},
    {"Device", "Device name", "", false, false, true, true},
    {"Head", "Head number", "", true, true, false, true},
    {"PartitionNumber", "Partition number", "", true, true, false, true},
    {kInfoSeparator, "", "", true, true, true, true},
    {"Date", "Date", "Date", false, false, false, true},
    {"Time", "Time", "Time(Alt)", false, false, false, true},
    {"RecDateTime", "Recording date and time", "Date/Time Rec", false, false, true, true},
    {kInfoSeparator, "", "", true, true, true, true},
    {"FrameRate", "Frame rate", "Frame rate", true, true, true, true},
    {"ShutterSpeed", "Shutter speed", "Shutter speed", true, true, true, true},
    {"Resolution", "Resolution", "Resolution", true, true, true, true},
    {kInfoSeparator, "", "", true, true, true, true},
    {"FrameNumber", "Frame number", "Frame No", false, true, true, true},
    {"MaxFrames", "Maximum of frames", "Frame Count", true, true, true, false},
    {"Length", "Length of Time", "Rec Time", true, true, true, false},
    {kInfoSeparator, "", "", true, true, true, true},
    {"TimeIrigCode", "Time code/IRIG code", "Current Time", true, true, true, false},
    {"TimeCode", "Current time", "Current Time", false, false, false, true},
    {"IrigCode", "IRIG code", "IRIG Time", false, false, false, true},
    {kInfoSeparator, "", "", true, true, true, true},
    {"Trigger", "Trigger", "Trigger mode", true, true, true, true},
    {"EventMarker", "Event Marker", "Event", false, true, true, true},
    {"IgnoreTrigger", "Number of Ignore Trigger", "Ignore Trg", true, true, true, false},
    {kInfoSeparator, "", "", true, true, true, true},
    {"LUT", "LUT", "", true, true, true, false},
    {"Saturation", "Saturation", "Saturation", true, true, true, false},
    {"ZoomRate", "Zoom rate", "Zoom rate", true, true, true, false},
    {"CrossCursor", "Cross cursor", "", true, true, true, false},
    {kInfoSeparator, "", "", true, true, true, true},
    {"Comment", "Comment", "Comment", true, true, true, true},
    {"Logo", "Logo", "Logo", true, true, true, true},
    {"Custom", "Custom", "", true, true, true, true},
    {kInfoSeparator, "", "", true, true, true, true},
    {"TriggerExposeTime", "Trigger and Exposure Gap time", "TRG-EXP", false, true, true, true},
    {"SimpleMeasurement", "Simple measurement result", "Simple measurement result", true, true, true, true},
    {kInfoSeparator, "", "", true, true, true, true},
    {"RecEndTime", "Rec end time", "Rec end time", false, true, true, true},
    {"", "", "", false, false, false, false},
};

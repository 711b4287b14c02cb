#pragma once

#include <QtGlobal>

/// Key of an open document, unique while the document is open. Travels to pages as a decimal number or text.
using DOCKEY = quint32;

/// The key that means "no document" (-1, all bits set).
constexpr DOCKEY kInvalidDockey = 0xFFFFFFFF;

/// Number of a partition of the camera's memory.
using PARTITIONNUMBER = int;

/// How far the selected cameras have a function. Host operations hand the levels over as plain integers.
enum MultipleDocsLevel : int {
    MULTIPLE_DOCS_NOTHING = 0,         ///< No selected camera has it.
    MULTIPLE_DOCS_NOT_IN_CURRENT = 1,  ///< Some selected camera has it, the current one does not.
    MULTIPLE_DOCS_CURRENT_AND_ANY = 2, ///< The current camera has it, not all the others do.
    MULTIPLE_DOCS_ALL = 3,             ///< All selected cameras have it.
};

/// Pages of the live panel.
enum LIVE_PAGE : int {
    LIVE_PAGE_LIST = 0,
    LIVE_PAGE_DEVICE_SETTING = 1,
    LIVE_PAGE_VARIABLE = 2,
    LIVE_PAGE_AUTO_EXPOSURE = 3,
    LIVE_PAGE_HW_IMAGE_TRIGGER = 4,
};

/// Mode of the host, as `HostApplication::getMode` gives it.
enum HostMode : int {
    HOST_MODE_LIVE = 0,
    HOST_MODE_MEMORY = 1,
    HOST_MODE_FILE = 2,
};

/// The unit of exposure times in which a host gives and takes the camera's own values.
constexpr int kRawShutterUnit = 1;

/// Selection value and row value where no position in the host's list applies.
constexpr int kNoSelectValue = -999;

#pragma once

#include "cmake/qt_pch.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QtTest>
#include <algorithm>
#include <cmath>

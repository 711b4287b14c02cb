#pragma once

#include <QList>
#include <QSize>

/// By Euclid; with one 0 the other number.
uint greatestCommonDivisor(uint a, uint b);

/// Rounded to `digits` - 1 decimals, halves away from zero; 0 digits count as 1.
double roundToDigits(double value, uint digits);
/// Keeps the integer part and rounds the fraction, halves up, to `digits` - 1 decimals; 0 digits count as 1.
double floorToDigits(double value, uint digits);

/// The element of `values` nearest to `value`, to 4 decimals. Distances are compared to 4 decimals, and of
/// equal ones the later element counts. An empty list has nothing nearer than the value itself.
double nearestValue(double value, const QList<double>& values);

/// Raises width and height to 1.
void clampMin1(QSize& size);

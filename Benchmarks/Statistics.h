#pragma once

#include <QList>

#include <algorithm>
#include <limits>

//! The middle value; of an even number of values, the mean of the two in the middle. NaN of none.
template<typename T>
double median(QList<T> values)
{
    if (values.isEmpty())
        return std::numeric_limits<double>::quiet_NaN();
    std::sort(values.begin(), values.end());
    const qsizetype middle = values.size() / 2;
    return values.size() % 2 ? double(values[middle]) : (double(values[middle - 1]) + double(values[middle])) / 2;
}

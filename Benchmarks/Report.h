#pragma once

#include "Results.h"

#include <QJsonObject>
#include <QString>

namespace Report {

//! The results as tables for people.
QString toText(const Results &results);

//! The same for programs, unrounded. What was not measured is left out.
QJsonObject toJson(const Results &results);

} // namespace Report

#pragma once

#include "Subjects.h"

#include <QList>
#include <QString>

#include <limits>
#include <optional>

inline constexpr double notMeasured = std::numeric_limits<double>::quiet_NaN();

//! A difference in objects of an instance from which on it is its own; less is shared by many instances.
inline constexpr double ownObject = 0.1;

//! What one instance costs while few and while many are alive.
struct Growth
{
    double createUsFew = notMeasured;
    double createUsMany = notMeasured;
    double objectsMany = notMeasured;
    double bytesMany = notMeasured;
    //! True when an instance costs clearly more among many.
    bool isFlagged = false;
};

//! What one instance costs. Times are processor time.
struct InstanceResult
{
    QString name;
    bool isComponent = false;
    double createUs = notMeasured; //!< making it, and what it puts off to the event loop
    double destroyUs = notMeasured;
    double objects = notMeasured;     //!< live QObjects
    double bytes = notMeasured;       //!< on the heap; NaN where they cannot be counted
    double scriptBytes = notMeasured; //!< in the script engine's own memory
    double leftObjects = 0;           //!< QObjects that outlive it
    // Creation time as a multiple of the same round's; NaN where there is no such subject.
    double toHandWritten = notMeasured;
    double toPlain = notMeasured;
    double toBasic = notMeasured;
    double toMaterial = notMeasured;
    // What the last three are relative to.
    QString plain;
    QString control;
    std::optional<Growth> growth;
};

//! One figure of the other benches.
struct Figure
{
    QString name;
    double value = notMeasured;
    QString unit;
};

struct Results
{
    QList<InstanceResult> instances;
    QList<Subjects::Skipped> skipped;
    //! Subjects that do not do what is to be measured, and why.
    QList<Subjects::Skipped> failed;
    QList<Figure> theme;
    QList<Figure> calls;
    QList<Figure> richText;
    QList<Figure> load;
    QList<Figure> lists;
    int rounds = 0;
    bool quick = false;
};

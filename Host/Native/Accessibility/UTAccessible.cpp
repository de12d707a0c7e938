#include "UTAccessible.h"

UTAccessible::UTAccessible(QObject *attachee)
    : QObject(attachee)
{
}

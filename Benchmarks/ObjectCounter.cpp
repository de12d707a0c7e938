#include "ObjectCounter.h"

#include <private/qhooks_p.h>

#include <atomic>

namespace {

std::atomic<int> live = 0;

// Hooks of another tool that were there first.
QHooks::AddQObjectCallback nextAdd = nullptr;
QHooks::RemoveQObjectCallback nextRemove = nullptr;

void added(QObject *object)
{
    live.fetch_add(1, std::memory_order_relaxed);
    if (nextAdd)
        nextAdd(object);
}

void removed(QObject *object)
{
    live.fetch_sub(1, std::memory_order_relaxed);
    if (nextRemove)
        nextRemove(object);
}

} // namespace

void ObjectCounter::install()
{
    nextAdd = reinterpret_cast<QHooks::AddQObjectCallback>(qtHookData[QHooks::AddQObject]);
    nextRemove = reinterpret_cast<QHooks::RemoveQObjectCallback>(qtHookData[QHooks::RemoveQObject]);
    qtHookData[QHooks::AddQObject] = reinterpret_cast<quintptr>(&added);
    qtHookData[QHooks::RemoveQObject] = reinterpret_cast<quintptr>(&removed);
}

int ObjectCounter::liveObjects()
{
    return live;
}

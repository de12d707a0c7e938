#include "AccessibleItems.h"

#ifdef KORVUUI_HAS_PRIVATE_QUICK

#include <QAccessible>
#include <QQuickItem>
#include <private/qaccessiblequickitem_p.h>
#include <private/qquickitem_p.h>

namespace {

class AccessibleItem : public QAccessibleQuickItem
{
public:
    using QAccessibleQuickItem::QAccessibleQuickItem;

    // Qt asks a control what it is and overwrites the role that it was given.
    QAccessible::Role role() const override
    {
        const int own = object()->property("accessibleRole").toInt();
        return own > 0 ? QAccessible::Role(own) : QAccessibleQuickItem::role();
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleQuickItem::state();
        // Qt calls every item enabled.
        const auto *item = static_cast<const QQuickItem *>(object());
        if (item && !item->isEnabled())
            state.disabled = true;
        return state;
    }
};

QAccessibleInterface *create(const QString &className, QObject *object)
{
    if (className != QLatin1StringView("QQuickItem"))
        return nullptr;
    auto *item = qobject_cast<QQuickItem *>(object);
    return item && QQuickItemPrivate::get(item)->isAccessible ? new AccessibleItem(item) : nullptr;
}

} // namespace

void AccessibleItems::install()
{
    static const bool once = (QAccessible::installFactory(create), true);
    Q_UNUSED(once)
}

#else

void AccessibleItems::install() {}

#endif

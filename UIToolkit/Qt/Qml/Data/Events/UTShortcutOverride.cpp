#include "UTShortcutOverride.h"

#include "ComponentName.h"
#include "EventFilter.h"

#include <QKeyEvent>

#include <algorithm>
#include <iterator>

namespace {

constexpr const char *supportedComponents[] = {"UTTextFieldBase", "UTTextAreaBase"};

bool isOnePrintableCharacter(const QString &text)
{
    const QList<uint> characters = text.toUcs4();
    return characters.size() == 1 && text.isValidUtf16() && QChar::isPrint(characters.first());
}

bool takeCharacter(QEvent *event)
{
    constexpr Qt::KeyboardModifiers altGr = Qt::ControlModifier | Qt::AltModifier;
    const auto *key = dynamic_cast<QKeyEvent *>(event);
    if (!key || (key->modifiers() & altGr) != altGr || !isOnePrintableCharacter(key->text()))
        return false;
    event->accept();
    return true;
}

} // namespace

UTShortcutOverride::UTShortcutOverride(QObject *attachee)
    : KObject(attachee)
{
    const QByteArrayView component = ComponentName::of(attachee);
    if (std::find(std::begin(supportedComponents), std::end(supportedComponents), component)
        == std::end(supportedComponents)) {
        // The punctuation belongs to the text that applications know.
        qWarning("This property can't be used outside it's supported component!.");
        return;
    }
    VisualUtils::installEventFilter(attachee, QEvent::ShortcutOverride, takeCharacter);
}

UTShortcutOverride *UTShortcutOverride::qmlAttachedProperties(QObject *attachee)
{
    return new UTShortcutOverride(attachee);
}

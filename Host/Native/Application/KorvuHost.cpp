#include "KorvuHost.h"

#include <QQmlContext>
#include <QQmlEngine>

#include "AccessibleItems.h"
#include "App.h"
#include "DynamicImageProvider.h"
#include "DynamicSource.h"
#include "EmojiImageProvider.h"
#include "EmojiText.h"
#include "KFont.h"
#include "KSvgImageProvider.h"

using namespace Qt::StringLiterals;

void KorvuHost::install(QQmlEngine *engine)
{
    KFont::installSubstitutions();
    App::instance();
    AccessibleItems::install();
    if (!engine)
        return;
    // An application's own provider of the same name stays.
    const QString emojiProvider = QLatin1StringView(EmojiText::imageProviderId);
    if (!engine->imageProvider(emojiProvider))
        engine->addImageProvider(emojiProvider, new EmojiImageProvider);
    if (!engine->imageProvider(DynamicSource::providerId()))
        engine->addImageProvider(DynamicSource::providerId(), new DynamicImageProvider);
    if (!engine->imageProvider(KSvgImageProvider::providerId()))
        engine->addImageProvider(KSvgImageProvider::providerId(), new KSvgImageProvider);
    // Every themed component asks its context for it, and to learn that there is none would take an exception each time.
    if (!engine->rootContext()->contextProperty(u"themeMode"_s).isValid())
        engine->rootContext()->setContextProperty(u"themeMode"_s, u"global"_s);
}

#include "ThemeManager.h"

#include <QDebug>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#include <QStyleHints>
#include <QUrl>

#include <utility>

namespace {
// The sources of the built-in palette, needed only to lay an application's own file over them.
constexpr const char *builtInFiles[] = {
    ":/korvu/palettes/sets.json",
    ":/korvu/palettes/light.json",
    ":/korvu/palettes/dark.json",
    ":/korvu/palettes/highcontrast.json",
};

KPaletteTheme systemTheme()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    switch (QGuiApplication::styleHints()->colorScheme()) {
    case Qt::ColorScheme::Dark:
        return KPaletteTheme::Dark;
    case Qt::ColorScheme::Light:
        return KPaletteTheme::Light;
    case Qt::ColorScheme::Unknown:
        break;
    }
#endif
    const QPalette palette = QGuiApplication::palette();
    const bool dark = palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
    return dark ? KPaletteTheme::Dark : KPaletteTheme::Light;
}

QString localPath(const QString &file)
{
    const QUrl url(file);
    if (url.isLocalFile())
        return url.toLocalFile();
    if (url.scheme() == QLatin1String("qrc"))
        return QLatin1Char(':') + url.path();
    return file;
}
}

ThemeManager *ThemeManager::instance()
{
    static ThemeManager manager;
    return &manager;
}

QString ThemeManager::theme() const
{
    return KPaletteReader::themeName(m_theme);
}

void ThemeManager::setTheme(const QString &theme)
{
    const int index = KPaletteReader::themeIndex(theme);
    if (index < 0) {
        qWarning("Unknown theme \"%s\"; the theme stays \"%s\".", qUtf8Printable(theme), qUtf8Printable(this->theme()));
        return;
    }
    setFollowSystem(false);
    applyTheme(KPaletteTheme(index));
}

void ThemeManager::applyTheme(KPaletteTheme theme)
{
    if (std::exchange(m_theme, theme) != theme)
        Q_EMIT globalThemeChanged();
}

void ThemeManager::setFollowSystem(bool follow)
{
    if (std::exchange(m_followSystem, follow) == follow)
        return;
    if (follow) {
        // Platforms that report no colour scheme still send their palette.
        qGuiApp->installEventFilter(this);
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
        connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this, &ThemeManager::applySystemTheme);
#endif
        applySystemTheme();
    } else {
        qGuiApp->removeEventFilter(this);
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
        QGuiApplication::styleHints()->disconnect(this);
#endif
    }
    Q_EMIT followSystemChanged();
}

void ThemeManager::applySystemTheme()
{
    applyTheme(systemTheme());
}

bool ThemeManager::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange)
        applySystemTheme();
    return QObject::eventFilter(watched, event);
}

bool ThemeManager::loadPalette(const QString &file)
{
    KPaletteReader reader;
    for (const char *builtIn : builtInFiles)
        reader.addFile(QLatin1String(builtIn));
    const bool usable = reader.addFile(localPath(file));
    const KPaletteTable table = reader.resolve();
    for (const QString &warning : reader.warnings())
        qWarning("%s", qUtf8Printable(warning));
    if (!usable)
        return false;
    m_palette.setTable(table);
    m_paletteLoaded = true;
    Q_EMIT globalThemeChanged();
    return true;
}

void ThemeManager::resetPalette()
{
    if (!std::exchange(m_paletteLoaded, false))
        return;
    m_palette.setBuiltIn();
    Q_EMIT globalThemeChanged();
}

QStringList ThemeManager::colorSetNames() const
{
    QStringList names;
    for (const QByteArray &name : m_palette.names())
        names.append(QString::fromUtf8(name));
    return names;
}

KPaletteTheme ThemeManager::resolve(AppThemeType themeType) const
{
    switch (themeType) {
    case AppThemeType::Light:
        return KPaletteTheme::Light;
    case AppThemeType::Dark:
        return KPaletteTheme::Dark;
    case AppThemeType::HighContrast:
        return KPaletteTheme::HighContrast;
    case AppThemeType::Global:
        break;
    }
    return m_theme;
}

#include "CommandLine.h"

#include "PageIndex.h"

#include <QCommandLineParser>
#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr int misuse = 2;
constexpr qreal smallestTextScale = 0.5;
constexpr qreal largestTextScale = 4;

QString listing()
{
    QStringList names;
    for (const PageInfo &page : PageIndex::pages())
        names.append(page.name);
    return names.join(u'\n');
}

QString unknown(const QString &what, const QString &culprit, const QString &valid)
{
    return u"gallery: there is no %1 \"%2\"; choose one of: %3"_s.arg(what, culprit, valid);
}

} // namespace

const QStringList &CommandLine::themes()
{
    static const QStringList names{u"light"_s, u"dark"_s, u"highContrast"_s};
    return names;
}

CommandLine CommandLine::parse(const QStringList &arguments)
{
    const QCommandLineOption list(u"list"_s, u"Prints the names of all pages."_s);
    const QCommandLineOption page(u"page"_s, u"Opens the page NAME."_s, u"NAME"_s);
    const QCommandLineOption theme(u"theme"_s, u"Starts in THEME: %1."_s.arg(themes().join(", "_L1)), u"THEME"_s);
    const QCommandLineOption rtl(u"rtl"_s, u"Lays everything out from right to left."_s);
    const QCommandLineOption scale(u"text-scale"_s, u"Multiplies all font sizes by X."_s, u"X"_s);
    const QCommandLineOption shot(u"shot"_s, u"Saves a picture of the page as FILE and ends."_s, u"FILE"_s);
    const QCommandLineOption shots(
        u"shots"_s,
        u"Saves pictures of all pages in every theme and both directions in the folder DIR, with one contact sheet a theme, and ends."_s,
        u"DIR"_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Shows every component of the library in all its variants."_s);
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOptions({list, page, theme, rtl, scale, shot, shots});

    CommandLine result;
    const auto refused = [&result](const QString &message) {
        result.message = message;
        result.exitStatus = misuse;
        return result;
    };

    if (!parser.parse(arguments))
        return refused(u"gallery: %1"_s.arg(parser.errorText()));
    if (parser.isSet(help)) {
        result.message = parser.helpText();
        return result;
    }
    if (parser.isSet(version)) {
        result.message = u"%1 %2"_s.arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion());
        return result;
    }
    if (parser.isSet(list)) {
        result.message = listing();
        return result;
    }
    if (const QStringList extra = parser.positionalArguments(); !extra.isEmpty())
        return refused(u"gallery: \"%1\" is no option; --help lists them"_s.arg(extra.first()));

    result.page = parser.isSet(page) ? parser.value(page) : PageIndex::startPage();
    if (!PageIndex::find(result.page))
        return refused(unknown(u"page"_s, result.page, listing().replace(u'\n', ", "_L1)));

    result.theme = parser.value(theme);
    if (parser.isSet(theme) && !themes().contains(result.theme))
        return refused(unknown(u"theme"_s, result.theme, themes().join(", "_L1)));

    if (parser.isSet(scale)) {
        bool isNumber = false;
        const qreal factor = parser.value(scale).toDouble(&isNumber);
        if (!isNumber || !(factor >= smallestTextScale && factor <= largestTextScale))
            return refused(u"gallery: \"%1\" is no text scale; give a number from %2 to %3"_s.arg(parser.value(scale))
                               .arg(smallestTextScale)
                               .arg(largestTextScale));
        result.textScale = factor;
    }

    result.rightToLeft = parser.isSet(rtl);
    if (parser.isSet(shots)) {
        result.action = Action::Shots;
        result.file = parser.value(shots);
    } else if (parser.isSet(shot)) {
        result.action = Action::Shot;
        result.file = parser.value(shot);
    }
    if (result.action != Action::Show && result.theme.isEmpty())
        result.theme = themes().first();
    if (result.action != Action::Show && result.file.isEmpty())
        return refused(u"gallery: the picture needs a name"_s);
    return result;
}

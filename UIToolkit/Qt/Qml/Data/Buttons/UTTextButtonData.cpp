#include "UTTextButtonData.h"

#include "ComponentName.h"

#include <App.h>
#include <KFont.h>

#include <array>

namespace {

constexpr auto slate = "tags-slate-border";

// By TextButtonColorStyle. That the colours do not match the names is meant: applications rely on these pairs.
constexpr std::array<const char *, 13> colorTable = {
    /* Accent */ "hyperlink-accent-text",
    /* Cobalt */ "hyperlink-destructive-text",
    /* Cyan */ "hyperlink-share-text",
    /* Mint */ "coachmarkteaching-button-hyperlink-text",
    /* Lime */ "hyperlink-warning-text",
    /* Warning */ slate,
    /* Gold */ slate,
    /* Orange */ slate,
    /* Pink */ slate,
    /* Purple */ slate,
    /* Violet */ slate,
    /* Slate */ slate,
    /* Share */ "sharewindow-control-text-primary",
};

} // namespace

UTTextButtonData::UTTextButtonData(QObject *attachee)
    : KObject(attachee)
{
    if (!ComponentName::check(attachee, "UTTextButton"))
        return;
    connect(this, &UTTextButtonData::colorStyleChanged, this, &UTTextButtonData::refresh);
    connect(this, &UTTextButtonData::sizeStyleChanged, this, &UTTextButtonData::refresh);
    connect(App::instance(), &App::textScaleChanged, this, &UTTextButtonData::refresh);
    // The first styles are styles too, and writing them changes nothing.
    refresh();
}

void UTTextButtonData::refresh()
{
    const size_t row = size_t(m_colorStyle) < colorTable.size() ? size_t(m_colorStyle) : size_t(ColorStyle::Accent);
    set(m_textColorSetName, QString::fromLatin1(colorTable[row]), &UTTextButtonData::textColorSetNameChanged);
    const KFont::Token token =
        m_sizeStyle == SizeStyle::Secondary ? KFont::HyperlinkSecondary : KFont::HyperlinkPrimary;
    set<UTTextButtonData, QFont>(m_font, KFont(token), &UTTextButtonData::fontChanged);
}

#pragma once

#include <QFont>
#include <QString>

#include "korvuui_export.h"

//! A font of the application's typography scale, at the application's text scale. A font is a value: build it anew when
//! App::textScaleChanged was emitted.
class KORVUUI_EXPORT KFont : public QFont
{
public:
    //! Places in the scale. The values are part of the interface: tables of controls name them by number.
    enum Token : int {
        BannerPrimary = 0,         //!< 26 pixels, demi-bold
        Title = 1,                 //!< 20 pixels, demi-bold
        SpaceHeader = 2,           //!< 18 pixels
        BodyPrimarySemibold = 3,   //!< 16 pixels, medium weight: labels of large and medium buttons
        BodySecondarySemibold = 4, //!< 14 pixels, medium weight: labels of small buttons
        HyperlinkPrimary = 5,      //!< 16 pixels, underlined: text buttons
        HyperlinkSecondary = 6,    //!< 14 pixels, underlined: small text buttons
        TagLabelSecondary = 7,     //!< 12 pixels, demi-bold: labels of the smallest buttons
        BodyPrimary = 8,           //!< 16 pixels
        BodyPrimaryBold = 9,
        BodySecondary = 10, //!< 14 pixels: the body font
        BodySecondaryBold = 11,
        BodySecondaryItalic = 12,
        BodyTertiary = 13,       //!< 14 pixels
        BodyLight = 14,          //!< 14 pixels, light
        Header = 15,             //!< 16 pixels, bold
        SubheaderPrimary = 16,   //!< 16 pixels, demi-bold
        SubheaderSecondary = 17, //!< 14 pixels, demi-bold
        SpaceHeaderBold = 18,
        BannerSecondary = 19,      //!< 26 pixels
        BannerTertiary = 20,       //!< 26 pixels, bold
        HyperlinkPrimaryBold = 21, //!< 16 pixels, bold, underlined
        TagLabelTertiary = 22,     //!< 12 pixels
        HighlightSecondary = 23,   //!< 14 pixels, bold
        HighlightCompact = 24,     //!< 12 pixels, bold
        CodeBlocks = 25,           //!< 16 pixels, monospaced
        Emoji = 26,                //!< 16 pixels, emoji font
    };

    //! The font at \a token, or its bold form. A number that is no token is warned about and gives the body font.
    explicit KFont(Token token, bool bold = false);

    //! The family names that the interface asks for. Where the system lacks one, installSubstitutions() provides.
    static QString defaultFamily();   //!< "Segoe UI"
    static QString monospaceFamily(); //!< "Consolas"
    static QString emojiFamily();     //!< "Segoe UI Emoji"

    //! Lets families of this system stand in for those above that it lacks. Further calls do nothing.
    static void installSubstitutions();
};

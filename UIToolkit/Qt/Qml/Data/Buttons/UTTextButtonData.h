#pragma once

#include "KObject.h"
#include "UTTextButtonEnum.h"

#include <QFont>
#include <QtQml/qqml.h>

/*! Colour set and font of a UTTextButton. */
class UTTextButtonData : public KObject
{
    Q_OBJECT
    //! Accent by default; an unknown number counts as Accent.
    Q_PROPERTY(UTTextButtonEnum::TextButtonColorStyle colorStyle READ colorStyle WRITE setColorStyle NOTIFY
                   colorStyleChanged FINAL)
    //! Primary by default; an unknown number counts as Primary.
    Q_PROPERTY(
        UTTextButtonEnum::TextButtonSizeStyle sizeStyle READ sizeStyle WRITE setSizeStyle NOTIFY sizeStyleChanged FINAL)
    Q_PROPERTY(QString textColorSetName READ textColorSetName NOTIFY textColorSetNameChanged FINAL)
    Q_PROPERTY(QFont font READ font NOTIFY fontChanged FINAL)

public:
    using ColorStyle = UTTextButtonEnum::TextButtonColorStyle;
    using SizeStyle = UTTextButtonEnum::TextButtonSizeStyle;

    explicit UTTextButtonData(QObject *attachee = nullptr);

    static UTTextButtonData *qmlAttachedProperties(QObject *attachee) { return new UTTextButtonData(attachee); }

    ColorStyle colorStyle() const { return m_colorStyle; }
    SizeStyle sizeStyle() const { return m_sizeStyle; }
    QString textColorSetName() const { return m_textColorSetName; }
    QFont font() const { return m_font; }

    void setColorStyle(ColorStyle style) { set(m_colorStyle, style, &UTTextButtonData::colorStyleChanged); }
    void setSizeStyle(SizeStyle style) { set(m_sizeStyle, style, &UTTextButtonData::sizeStyleChanged); }

public Q_SLOTS:
    //! Recomputes both outputs.
    void refresh();

Q_SIGNALS:
    void colorStyleChanged();
    void sizeStyleChanged();
    void textColorSetNameChanged();
    void fontChanged();

private:
    QString m_textColorSetName;
    QFont m_font;
    ColorStyle m_colorStyle = ColorStyle::Accent;
    SizeStyle m_sizeStyle = SizeStyle::Primary;
};

QML_DECLARE_TYPEINFO(UTTextButtonData, QML_HAS_ATTACHED_PROPERTIES)

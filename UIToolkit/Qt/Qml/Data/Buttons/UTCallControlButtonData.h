#pragma once

#include "KObject.h"
#include "UTCallControlButtonEnum.h"

#include <KColorSet.h>

#include <QFont>
#include <QPointer>
#include <QQuickItem>
#include <QSize>
#include <QtQml/qqml.h>

/*!
 * What a UTCallControlButton looks like, from its type, style, size and state: metrics, names of
 * colour sets and which of its parts there are.
 *
 * Implicit size and colour sets of the button itself it writes into the button, which bindings would
 * do too, but at a third of the button's cost.
 *
 * An unknown number as type, style or size changes nothing. On any other component than its own the
 * object stays inert: its outputs keep their first values.
 */
class UTCallControlButtonData : public KObject
{
    Q_OBJECT
    //! Which halves and parts the button has. Changes the flags only: the metrics follow with the next
    //! updateButtonSize(), so set the type before the size.
    Q_PROPERTY(UTCallControlButtonEnum::ButtonType buttonType READ buttonType WRITE setButtonType NOTIFY
                   buttonTypeChanged FINAL)
    Q_PROPERTY(UTCallControlButtonEnum::ButtonStyle buttonStyle READ buttonStyle WRITE setButtonStyle NOTIFY
                   buttonStyleChanged FINAL)
    Q_PROPERTY(UTCallControlButtonEnum::ButtonSize buttonSize READ buttonSize WRITE setButtonSize NOTIFY
                   buttonSizeChanged FINAL)
    //! Seen by the style Ghost only.
    Q_PROPERTY(UTCallControlButtonEnum::ButtonState buttonState READ buttonState WRITE setButtonState NOTIFY
                   buttonStateChanged FINAL)
    //! Height of the button; this and all other metrics are in pixels.
    Q_PROPERTY(int height READ height WRITE setHeight NOTIFY heightChanged FINAL)
    //! Font of the label.
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged FINAL)
    Q_PROPERTY(QString backgroundColorSetName READ backgroundColorSetName WRITE setBackgroundColorSetName NOTIFY
                   backgroundColorSetNameChanged FINAL)
    Q_PROPERTY(QString checkedBackgroundColorSetName READ checkedBackgroundColorSetName WRITE
                   setCheckedBackgroundColorSetName NOTIFY checkedBackgroundColorSetNameChanged FINAL)
    //! Empty for no border.
    Q_PROPERTY(QString borderColorSetName READ borderColorSetName WRITE setBorderColorSetName NOTIFY
                   borderColorSetNameChanged FINAL)
    Q_PROPERTY(
        QString textColorSetName READ textColorSetName WRITE setTextColorSetName NOTIFY textColorSetNameChanged FINAL)
    Q_PROPERTY(int leftSideLeftPadding READ leftSideLeftPadding WRITE setLeftSideLeftPadding NOTIFY
                   leftSideLeftPaddingChanged FINAL)
    Q_PROPERTY(int leftSideRightPadding READ leftSideRightPadding WRITE setLeftSideRightPadding NOTIFY
                   leftSideRightPaddingChanged FINAL)
    Q_PROPERTY(QSize leftIconSize READ leftIconSize WRITE setLeftIconSize NOTIFY leftIconSizeChanged FINAL)
    //! Whether the type can carry a label.
    Q_PROPERTY(bool canShowText READ canShowText WRITE setCanShowText NOTIFY canShowTextChanged FINAL)
    //! Whether a label is shown; the component's to say, false by default.
    Q_PROPERTY(bool showText READ showText WRITE setShowText NOTIFY showTextChanged FINAL)
    //! Between the left icon and the label.
    Q_PROPERTY(int textLeftMargin READ textLeftMargin WRITE setTextLeftMargin NOTIFY textLeftMarginChanged FINAL)
    //! Whether a line parts the halves.
    Q_PROPERTY(
        bool separatorVisible READ separatorVisible WRITE setSeparatorVisible NOTIFY separatorVisibleChanged FINAL)
    Q_PROPERTY(int separatorHeight READ separatorHeight WRITE setSeparatorHeight NOTIFY separatorHeightChanged FINAL)
    //! Whether there is a right half.
    Q_PROPERTY(bool rightButtonVisible READ rightButtonVisible WRITE setRightButtonVisible NOTIFY
                   rightButtonVisibleChanged FINAL)
    Q_PROPERTY(int rightSideLeftPadding READ rightSideLeftPadding WRITE setRightSideLeftPadding NOTIFY
                   rightSideLeftPaddingChanged FINAL)
    Q_PROPERTY(int rightSideRightPadding READ rightSideRightPadding WRITE setRightSideRightPadding NOTIFY
                   rightSideRightPaddingChanged FINAL)
    Q_PROPERTY(QSize rightIconSize READ rightIconSize WRITE setRightIconSize NOTIFY rightIconSizeChanged FINAL)
    //! Whether there may be a badge; true by default.
    Q_PROPERTY(bool canShowBadge READ canShowBadge WRITE setCanShowBadge NOTIFY canShowBadgeChanged FINAL)

    using Self = UTCallControlButtonData;
    //! Theme type of the text, for example "global" or "dark"; empty by default.
    Q_PROPERTY(QString themeType READ themeType WRITE setThemeType NOTIFY themeTypeChanged FINAL)
    //! The colours of everything that lies on the button.
    Q_PROPERTY(KColorSet textColorSet READ textColorSet NOTIFY textColorSetChanged FINAL)
    //! For the component to write: sets buttonType, and has the metrics follow at once.
    Q_PROPERTY(UTCallControlButtonEnum::ButtonType typeWithMetrics READ buttonType WRITE setTypeWithMetrics FINAL)
    //! What the label and the right half add to the width of the button, and the least height that the label
    //! needs; the component's to say, 0 by default.
    Q_PROPERTY(qreal labelRoom READ labelRoom WRITE setLabelRoom NOTIFY labelRoomChanged FINAL)
    Q_PROPERTY(qreal labelHeight READ labelHeight WRITE setLabelHeight NOTIFY labelHeightChanged FINAL)
    Q_PROPERTY(qreal rightRoom READ rightRoom WRITE setRightRoom NOTIFY rightRoomChanged FINAL)
    //! Whether the left half is checked, and with it the button, unless a line parts the halves; the component's to
    //! say, false by default.
    Q_PROPERTY(bool leftChecked READ leftChecked WRITE setLeftChecked NOTIFY leftCheckedChanged FINAL)

public:
    explicit UTCallControlButtonData(QObject *attachee = nullptr);

    static UTCallControlButtonData *qmlAttachedProperties(QObject *attachee)
    {
        return new UTCallControlButtonData(attachee);
    }

    UTCallControlButtonEnum::ButtonType buttonType() const { return m_buttonType; }
    UTCallControlButtonEnum::ButtonStyle buttonStyle() const { return m_buttonStyle; }
    UTCallControlButtonEnum::ButtonSize buttonSize() const { return m_buttonSize; }
    UTCallControlButtonEnum::ButtonState buttonState() const { return m_buttonState; }
    int height() const { return m_height; }
    QFont font() const { return m_font; }
    QString backgroundColorSetName() const { return m_backgroundColorSetName; }
    QString checkedBackgroundColorSetName() const { return m_checkedBackgroundColorSetName; }
    QString borderColorSetName() const { return m_borderColorSetName; }
    QString textColorSetName() const { return m_textColorSetName; }
    int leftSideLeftPadding() const { return m_leftSideLeftPadding; }
    int leftSideRightPadding() const { return m_leftSideRightPadding; }
    QSize leftIconSize() const { return m_leftIconSize; }
    bool canShowText() const { return m_canShowText; }
    bool showText() const { return m_showText; }
    int textLeftMargin() const { return m_textLeftMargin; }
    bool separatorVisible() const { return m_separatorVisible; }
    int separatorHeight() const { return m_separatorHeight; }
    bool rightButtonVisible() const { return m_rightButtonVisible; }
    int rightSideLeftPadding() const { return m_rightSideLeftPadding; }
    int rightSideRightPadding() const { return m_rightSideRightPadding; }
    QSize rightIconSize() const { return m_rightIconSize; }
    bool canShowBadge() const { return m_canShowBadge; }
    QString themeType() const { return m_themeType; }
    KColorSet textColorSet() const { return m_textColorSet; }
    qreal labelRoom() const { return m_labelRoom; }
    qreal labelHeight() const { return m_labelHeight; }
    qreal rightRoom() const { return m_rightRoom; }
    bool leftChecked() const { return m_leftChecked; }

    void setButtonType(UTCallControlButtonEnum::ButtonType type) { set(m_buttonType, type, &Self::buttonTypeChanged); }
    void setButtonStyle(UTCallControlButtonEnum::ButtonStyle style)
    {
        set(m_buttonStyle, style, &Self::buttonStyleChanged);
    }
    void setButtonSize(UTCallControlButtonEnum::ButtonSize size) { set(m_buttonSize, size, &Self::buttonSizeChanged); }
    void setButtonState(UTCallControlButtonEnum::ButtonState state)
    {
        set(m_buttonState, state, &Self::buttonStateChanged);
    }
    void setHeight(int height) { set(m_height, height, &Self::heightChanged); }
    void setFont(const QFont &font) { set(m_font, font, &Self::fontChanged); }
    void setBackgroundColorSetName(const QString &name)
    {
        set(m_backgroundColorSetName, name, &Self::backgroundColorSetNameChanged);
    }
    void setCheckedBackgroundColorSetName(const QString &name)
    {
        set(m_checkedBackgroundColorSetName, name, &Self::checkedBackgroundColorSetNameChanged);
    }
    void setBorderColorSetName(const QString &name)
    {
        set(m_borderColorSetName, name, &Self::borderColorSetNameChanged);
    }
    void setTextColorSetName(const QString &name) { set(m_textColorSetName, name, &Self::textColorSetNameChanged); }
    void setLeftSideLeftPadding(int padding) { set(m_leftSideLeftPadding, padding, &Self::leftSideLeftPaddingChanged); }
    void setLeftSideRightPadding(int padding)
    {
        set(m_leftSideRightPadding, padding, &Self::leftSideRightPaddingChanged);
    }
    void setLeftIconSize(const QSize &size) { set(m_leftIconSize, size, &Self::leftIconSizeChanged); }
    void setCanShowText(bool can) { set(m_canShowText, can, &Self::canShowTextChanged); }
    void setShowText(bool show) { set(m_showText, show, &Self::showTextChanged); }
    void setTextLeftMargin(int margin) { set(m_textLeftMargin, margin, &Self::textLeftMarginChanged); }
    void setSeparatorVisible(bool visible) { set(m_separatorVisible, visible, &Self::separatorVisibleChanged); }
    void setSeparatorHeight(int height) { set(m_separatorHeight, height, &Self::separatorHeightChanged); }
    void setRightButtonVisible(bool visible) { set(m_rightButtonVisible, visible, &Self::rightButtonVisibleChanged); }
    void setRightSideLeftPadding(int padding)
    {
        set(m_rightSideLeftPadding, padding, &Self::rightSideLeftPaddingChanged);
    }
    void setRightSideRightPadding(int padding)
    {
        set(m_rightSideRightPadding, padding, &Self::rightSideRightPaddingChanged);
    }
    void setRightIconSize(const QSize &size) { set(m_rightIconSize, size, &Self::rightIconSizeChanged); }
    void setCanShowBadge(bool can) { set(m_canShowBadge, can, &Self::canShowBadgeChanged); }
    void setThemeType(const QString &themeType) { set(m_themeType, themeType, &Self::themeTypeChanged); }
    void setTypeWithMetrics(UTCallControlButtonEnum::ButtonType type);
    void setLabelRoom(qreal room) { set(m_labelRoom, room, &Self::labelRoomChanged); }
    void setLabelHeight(qreal height) { set(m_labelHeight, height, &Self::labelHeightChanged); }
    void setRightRoom(qreal room) { set(m_rightRoom, room, &Self::rightRoomChanged); }
    void setLeftChecked(bool checked) { set(m_leftChecked, checked, &Self::leftCheckedChanged); }

public Q_SLOTS:
    //! Sets the flags of the type.
    void updateButtonType();
    //! Sets height, font and all metrics of the type at this size.
    void updateButtonSize();
    //! Sets the names of the colour sets.
    void updateButtonStyle();
    void onShowTextChanged();

Q_SIGNALS:
    void buttonTypeChanged();
    void buttonStyleChanged();
    void buttonSizeChanged();
    void buttonStateChanged();
    void heightChanged();
    void fontChanged();
    void backgroundColorSetNameChanged();
    void checkedBackgroundColorSetNameChanged();
    void borderColorSetNameChanged();
    void textColorSetNameChanged();
    void leftSideLeftPaddingChanged();
    void leftSideRightPaddingChanged();
    void leftIconSizeChanged();
    void canShowTextChanged();
    void showTextChanged();
    void textLeftMarginChanged();
    void separatorVisibleChanged();
    void separatorHeightChanged();
    void rightButtonVisibleChanged();
    void rightSideLeftPaddingChanged();
    void rightSideRightPaddingChanged();
    void rightIconSizeChanged();
    void canShowBadgeChanged();
    void themeTypeChanged();
    void textColorSetChanged();
    void labelRoomChanged();
    void labelHeightChanged();
    void rightRoomChanged();
    void leftCheckedChanged();

private:
    template<typename T>
    void set(T &member, const T &value, void (Self::*changed)())
    {
        if (member == value)
            return;
        member = value;
        const Update update(this);
        Q_EMIT(this->*changed)();
    }

    // The button is updated once, after the outermost of several changes.
    class Update
    {
    public:
        explicit Update(Self *data)
            : m_data(data)
        {
            ++m_data->m_updates;
        }
        ~Update()
        {
            if (--m_data->m_updates == 0)
                m_data->updateButton();
        }

    private:
        Q_DISABLE_COPY_MOVE(Update)

        Self *m_data;
    };

    void updateFont();
    void updatePanelPadding();
    void updateTextColorSet();
    void updateButton();
    void giveButton(const char *property, QString &given, const QString &name);

    QPointer<QQuickItem> m_button;
    // What the button has been given.
    QString m_buttonBackground;
    QString m_buttonBorder;
    QString m_backgroundColorSetName;
    QString m_checkedBackgroundColorSetName;
    QString m_borderColorSetName;
    QString m_textColorSetName;
    QString m_themeType;
    KColorSet m_textColorSet;
    QFont m_font;
    QSize m_leftIconSize = QSize(0, 0);
    QSize m_rightIconSize = QSize(0, 0);
    UTCallControlButtonEnum::ButtonType m_buttonType = UTCallControlButtonEnum::ClosedCaptions;
    UTCallControlButtonEnum::ButtonStyle m_buttonStyle = UTCallControlButtonEnum::Secondary;
    UTCallControlButtonEnum::ButtonSize m_buttonSize = UTCallControlButtonEnum::Medium;
    UTCallControlButtonEnum::ButtonState m_buttonState = UTCallControlButtonEnum::Inactive;
    qreal m_labelRoom = 0;
    qreal m_labelHeight = 0;
    qreal m_rightRoom = 0;
    int m_updates = 0;
    int m_height = 0;
    int m_leftSideLeftPadding = 0;
    int m_leftSideRightPadding = 0;
    int m_textLeftMargin = 0;
    int m_separatorHeight = 0;
    int m_rightSideLeftPadding = 0;
    int m_rightSideRightPadding = 0;
    bool m_canShowText = false;
    bool m_showText = false;
    bool m_separatorVisible = false;
    bool m_rightButtonVisible = false;
    bool m_canShowBadge = true;
    bool m_leftChecked = false;
};

QML_DECLARE_TYPEINFO(UTCallControlButtonData, QML_HAS_ATTACHED_PROPERTIES)

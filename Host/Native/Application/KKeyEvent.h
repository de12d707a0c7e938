#pragma once

#include <QObject>
#include <QString>

#include "korvuui_export.h"

class QKeyEvent;

//! The data of a key event, kept for after the event: QML reads the modifiers here and the key by Utils.getQKey(event).
class KORVUUI_EXPORT KKeyEvent : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int key READ key NOTIFY keyEventChanged FINAL)             //!< a Qt::Key, 0 before the first event
    Q_PROPERTY(int modifiers READ modifiers NOTIFY keyEventChanged FINAL) //!< Qt::KeyboardModifiers
    Q_PROPERTY(QString text READ text NOTIFY keyEventChanged FINAL)
    Q_PROPERTY(bool isAutoRepeat READ isAutoRepeat NOTIFY keyEventChanged FINAL)

public:
    explicit KKeyEvent(QObject *parent = nullptr);

    //! Copies what \a event holds now; null is ignored.
    void setKeyEvent(const QKeyEvent *event);

    int key() const { return m_key; }
    int modifiers() const { return m_modifiers; }
    QString text() const { return m_text; }
    bool isAutoRepeat() const { return m_isAutoRepeat; }

Q_SIGNALS:
    void keyEventChanged();

private:
    QString m_text;
    int m_key = 0;
    int m_modifiers = 0;
    bool m_isAutoRepeat = false;
};

#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>

#include <memory>

//! The base of every native test: a warning that a test does not announce fails it.
class NativeTest : public QObject
{
    Q_OBJECT

protected:
    //! What \a source describes, which must be a \a T. In a raw string prefer single quotes: to the moc of Qt 6.4, what is
    //! between double quotes there is code, so that "#" or "//" may cost it the whole class.
    template<typename T = QObject>
    static std::unique_ptr<T> create(QQmlEngine &engine, const QByteArray &source, const QVariantMap &properties = {})
    {
        QQmlComponent component(&engine);
        component.setData(source, QUrl());
        QObject *object = component.createWithInitialProperties(properties);
        if (!qobject_cast<T *>(object))
            qFatal("%s\n%s", source.constData(), qPrintable(component.errorString()));
        return std::unique_ptr<T>(qobject_cast<T *>(object));
    }

    //! Shows \a window and waits until it has the focus.
    static bool activate(QQuickWindow &window)
    {
        window.show();
        window.requestActivate();
        return QTest::qWaitForWindowActive(&window);
    }

    //! Around all pixels of \a image that \a isPainted is true of.
    template<typename Predicate>
    static QRect boundsOf(const QImage &image, Predicate isPainted)
    {
        QRect bounds;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (isPainted(image.pixelColor(x, y)))
                    bounds |= QRect(x, y, 1, 1);
            }
        }
        return bounds;
    }

    //! Announces what a data object says when it is not attached to a \a component.
    static void expectMisplaced(const char *component)
    {
        const QByteArray message = "This property can't be used outside it's supported component (%1).";
        QTest::ignoreMessage(QtWarningMsg, QByteArray(message).replace("%1", component));
    }

protected Q_SLOTS:
    virtual void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }
};

//! A test of what happens in a window that is described in QML.
class SceneTest : public NativeTest
{
    Q_OBJECT

protected:
    //! Shows the window that \a source describes and waits until it has the focus.
    void open(const QByteArray &source)
    {
        m_window = create<QQuickWindow>(m_engine, source);
        QVERIFY(activate(*m_window));
    }

    QQuickItem *item(const char *name) const { return m_window->findChild<QQuickItem *>(QLatin1StringView(name)); }

    void focus(const char *name)
    {
        item(name)->forceActiveFocus();
        QCOMPARE(m_window->activeFocusItem(), item(name));
    }

    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;

protected Q_SLOTS:
    virtual void cleanup() { m_window.reset(); }
};

//! Takes text as any kind of literal.
class AnyText : public QString
{
public:
    AnyText(const char *text)
        : QString(QString::fromUtf8(text))
    {
    }
    template<std::convertible_to<QString> Text>
    AnyText(const Text &text)
        : QString(text)
    {
    }
};

/*!
    The rows of a test function, each with a value for every column:

        const Table<QString, int> row{"text", "length"};
        row("empty", "", 0);
*/
template<typename... Values>
class Table
{
    template<typename Value>
    using Name = const char *;
    template<typename Value>
    using Cell = std::conditional_t<std::is_same_v<Value, QString>, AnyText, Value>;

public:
    explicit Table(Name<Values>... names) { (QTest::addColumn<Values>(names), ...); }

    void operator()(const AnyText &name, const Cell<Values> &...cells) const
    {
        (QTest::newRow(qPrintable(name)) << ... << static_cast<const Values &>(cells));
    }
};

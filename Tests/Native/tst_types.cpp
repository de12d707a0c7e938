#include "NativeTest.h"
#include "Sources.h"

#include <QDir>
#include <QHash>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QQmlContext>
#include <QRegularExpression>
#include <QSet>

#include <private/qqmlmetatype_p.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList modules = {u"UIToolkitQml"_s, u"UIToolkitQml_Experimental"_s, u"UIToolkitQml_Private"_s,
                             u"UIToolkitQml_Private_Data"_s};
const QString docsDir = Sources::path("Docs/api");
// Registered names that cannot be created yet. A name may leave this list, and none may join it.
const QString awaitedFile = Sources::path("Tests/Native/awaited.txt");

// Stands in for native data that is not written yet.
constexpr QByteArrayView placeholder = "AwaitedData";

// What a type cannot do without, beside its name.
const QHash<QString, QString> necessities = {{u"KFocusItemCanvas"_s, u"focusItem: KBasicFocusItem {}"_s},
                                             {u"UTPopOverWrapper"_s, u"model: UTPopOverModel {}"_s}};

QStringList readLines(const QString &path)
{
    QStringList lines = Sources::text(path).split(u'\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString &line) { return line.startsWith(u'#'); });
    return lines;
}

// A class made from a QML file is named after it, with a suffix that differs from run to run.
QString plainName(const char *className)
{
    static const QRegularExpression suffix(u"_(QMLTYPE|QML)_\\d+"_s);
    return QString::fromUtf8(className).remove(suffix);
}

bool isFromQml(const QMetaObject *metaObject)
{
    return QByteArrayView(metaObject->className()).contains("_QML");
}

bool hasFile(const QMetaObject *metaObject)
{
    return QFile::exists(u":/qt/qml/UIToolkitQml/%1.qml"_s.arg(plainName(metaObject->className())));
}

QString describe(const QMetaMethod &method)
{
    QStringList parameters;
    const QList<QByteArray> names = method.parameterNames();
    for (int i = 0; i < method.parameterCount(); ++i) {
        QString parameter = plainName(method.parameterTypeName(i).constData());
        if (!names[i].isEmpty())
            parameter += u' ' + QString::fromUtf8(names[i]);
        parameters << parameter;
    }
    const QString kind = method.methodType() == QMetaMethod::Signal ? u"signal"_s : u"function"_s;
    return u"%1 %2(%3)"_s.arg(kind, QString::fromUtf8(method.name()), parameters.join(", "_L1));
}

// The members that one class adds to its base, sorted within their kind.
QStringList describeMembers(const QMetaObject *metaObject)
{
    QStringList enumerations;
    for (int i = metaObject->enumeratorOffset(); i < metaObject->enumeratorCount(); ++i) {
        const QMetaEnum enumeration = metaObject->enumerator(i);
        QStringList keys;
        for (int k = 0; k < enumeration.keyCount(); ++k)
            keys << u"%1 %2"_s.arg(QLatin1StringView(enumeration.key(k))).arg(enumeration.value(k));
        enumerations << u"enum %1%2: %3"_s.arg(enumeration.isScoped() ? "class "_L1 : ""_L1,
                                               QLatin1StringView(enumeration.name()), keys.join(", "_L1));
    }
    QStringList properties;
    QSet<int> notifiers;
    for (int i = metaObject->propertyOffset(); i < metaObject->propertyCount(); ++i) {
        const QMetaProperty property = metaObject->property(i);
        notifiers << property.notifySignalIndex();
        // An alias of an enumeration in Qt has its type on some versions and is a number on others.
        const QString type = plainName(property.typeName());
        const bool isForeignEnum = type.startsWith(u'Q') && type.contains("::"_L1);
        properties << u"%1property %2 %3"_s.arg(property.isWritable() ? ""_L1 : "readonly "_L1,
                                                isForeignEnum ? u"int"_s : type, QLatin1StringView(property.name()));
    }
    QStringList methods;
    for (int i = metaObject->methodOffset(); i < metaObject->methodCount(); ++i) {
        const QMetaMethod method = metaObject->method(i);
        const bool isPublic = method.methodType() == QMetaMethod::Signal || method.access() == QMetaMethod::Public;
        if (isPublic && !notifiers.contains(i) && !method.name().startsWith('_'))
            methods << describe(method);
    }
    properties.sort();
    methods.sort();
    return enumerations + properties + methods;
}

QString describeType(const QString &module, const QMetaObject *metaObject)
{
    QStringList lines = {u"import %1 1.0"_s.arg(module)};
    QStringList members;
    const QMetaObject *base = metaObject;
    do {
        members = describeMembers(base) + members;
        base = base->superClass();
    } while (base && isFromQml(base) && !hasFile(base));
    if (base)
        lines << u"base %1"_s.arg(plainName(base->className()));
    return (lines + members).join(u'\n') + u'\n';
}

} // namespace

/*!
    Every name that the modules export: it can be created without a warning, or stands on the list of
    awaited names; and its public interface is the one written down in Docs/api.

    Run with UITOOLKIT_RENEW_API=1 in the environment to write the interfaces down anew.
*/
class tst_Types : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        create(m_engine, "import UIToolkitQml 1.0\nimport QtQml\nQtObject {}");
        const QStringList awaited = readLines(awaitedFile);
        m_awaited = QSet<QString>(awaited.begin(), awaited.end());
        QVERIFY(m_awaited.contains(u"KSwitch"_s) && m_awaited.contains(u"KMessagingListView"_s));
    }

    void types_data()
    {
        const Table<QString, QString, bool, bool, const QMetaObject *> row{"module", "name", "creatable", "singleton",
                                                                           "metaObject"};
        QSet<QString> names;
        for (const QQmlType &type : QQmlMetaType::qmlTypes()) {
            const QString module = type.module();
            const QString name = type.elementName();
            if (!modules.contains(module) || name.isEmpty() || names.contains(name))
                continue;
            names << name;
            row(name, module, name, type.isComposite() || type.isCreatable(), type.isSingleton(),
                type.baseMetaObject());
        }
        // The rest is declared by the module's listing, and by that alone.
        for (const QString &name : Sources::listedTypes()) {
            if (!names.contains(name))
                row(name, u"UIToolkitQml"_s, name, true, false, nullptr);
        }
    }

    void types()
    {
        QFETCH(QString, module);
        QFETCH(QString, name);
        QFETCH(bool, creatable);
        QFETCH(bool, singleton);
        QFETCH(const QMetaObject *, metaObject);
        m_seen << name;

        std::unique_ptr<QObject> object;
        QString error;
        if (singleton) {
            const int id = qmlTypeId(qPrintable(module), 1, 0, qPrintable(name));
            auto *instance = m_engine.singletonInstance<QObject *>(id);
            QVERIFY(instance);
            metaObject = instance->metaObject();
        } else if (creatable) {
            object = tryCreate(module, name, &error);
            if (m_awaited.contains(name)) {
                QVERIFY2(!object, "exists now: take it off the list of awaited names");
                QVERIFY2(error.contains("No such file"_L1), qPrintable(error));
                return;
            }
            QVERIFY2(object, qPrintable(error));
            metaObject = object->metaObject();
        } else if (metaObject && placeholder == metaObject->className()) {
            QVERIFY2(m_awaited.contains(name), "not written yet, and not on the list of awaited names");
            return;
        }
        QVERIFY(!m_awaited.contains(name));
        QVERIFY(metaObject);

        const QString description = describeType(module, metaObject);
        QFile file(u"%1/%2.txt"_s.arg(docsDir, name));
        if (qEnvironmentVariableIsSet("UITOOLKIT_RENEW_API")) {
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
            QVERIFY(file.write(description.toUtf8()) > 0);
            return;
        }
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName() + " is missing"_L1));
        QCOMPARE(description, QString::fromUtf8(file.readAll()));
    }

    void listsNameNothingElse()
    {
        QSet<QString> leftOver = m_awaited;
        QVERIFY2(leftOver.subtract(m_seen).isEmpty(), qPrintable(leftOver.values().join(u' ')));
        for (const QString &file : QDir(docsDir).entryList({u"*.txt"_s})) {
            const QString name = file.chopped(4);
            QVERIFY2(m_seen.contains(name) && !m_awaited.contains(name), qPrintable(file));
        }
    }

private:
    std::unique_ptr<QObject> tryCreate(const QString &module, const QString &name, QString *error)
    {
        QQmlComponent component(&m_engine);
        const QString companion = module == modules.first() ? QString() : u"import %1 1.0\n"_s.arg(module);
        const QString source =
            u"import Korvu 1.0\nimport UIToolkitQml 1.0\n%1%2 { %3 }"_s.arg(companion, name, necessities.value(name));
        component.setData(source.toUtf8(), QUrl());
        std::unique_ptr<QObject> object(component.isReady() ? component.create() : nullptr);
        *error = component.errorString();
        return object;
    }

    QQmlEngine m_engine;
    QSet<QString> m_awaited;
    QSet<QString> m_seen;
};

QTEST_MAIN(tst_Types)
#include "tst_types.moc"

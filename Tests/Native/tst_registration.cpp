#include "NativeTest.h"
#include "UTColorSetData.h"
#include "UTDynamicResource.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>

#include <private/qqmlmetatype_p.h>

#include <dlfcn.h>

using namespace Qt::StringLiterals;

// What the plugin's initialisers call, told apart by who calls: the loader finds these functions before those of Qt.
static QStringList initialisers;
static bool isPluginLoading = false;

static void note(const QString &step, const void *caller)
{
    Dl_info info;
    if (isPluginLoading && dladdr(caller, &info) && QByteArrayView(info.dli_fname).endsWith("libuitoolkitqml.so")
        && (initialisers.isEmpty() || initialisers.constLast() != step))
        initialisers.append(step);
}

template<typename Function>
static Function *next(Function *, const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

extern "C" Q_DECL_EXPORT void _ZN22QQmlModuleRegistrationC1EPKcPFvvE(void *self, const char *uri, void (*types)())
{
    note(u"module"_s, __builtin_return_address(0));
    next(_ZN22QQmlModuleRegistrationC1EPKcPFvvE, __func__)(self, uri, types);
}

extern "C" Q_DECL_EXPORT bool _Z21qRegisterResourceDataiPKhS0_S0_(int version, const uchar *tree, const uchar *name,
                                                                  const uchar *data)
{
    note(u"resources"_s, __builtin_return_address(0));
    return next(_Z21qRegisterResourceDataiPKhS0_S0_, __func__)(version, tree, name, data);
}

// Each hash begins with it: the table of compiled units, and that of the call-control buttons.
QHashSeed QHashSeed::globalSeed() noexcept
{
    note(u"table"_s, __builtin_return_address(0));
    static const auto original = next(&QHashSeed::globalSeed, "_ZN9QHashSeed10globalSeedEv");
    return original();
}

/*!
    What the plugin tells loaders and engines about itself: identity, bundle, compiled units, and the
    messages of names that cannot be created.
*/
class tst_Registration : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        isPluginLoading = true;
        QVERIFY(QPluginLoader(pluginFile()).load());
        isPluginLoading = false;
        QCOMPARE(initialisers, QStringList({u"module"_s, u"table"_s, u"resources"_s, u"table"_s}));

        create(m_engine, "import UIToolkitQml 1.0\nimport QtQml\nQtObject {}");
    }

    void identity()
    {
        const QJsonObject metaData = QPluginLoader(pluginFile()).metaData();
        QCOMPARE(metaData["IID"_L1].toString(), "UIToolkitQml/1.0"_L1);
        QCOMPARE(metaData["className"_L1].toString(), "UIToolkitQml"_L1);
        QCOMPARE(metaData["uri"_L1].toArray(), QJsonArray{u"UIToolkitQml"_s});

        QPluginLoader loader(pluginFile());
        QObject *plugin = loader.instance();
        QVERIFY2(plugin, qPrintable(loader.errorString()));
        QCOMPARE(plugin, QPluginLoader(pluginFile()).instance()); // one for the whole process
        QCOMPARE(plugin->metaObject()->className(), "UIToolkitQml");
        QVERIFY(loader.load());
    }

    void bundle()
    {
        // Everything lies side by side, and each file that the engine may ask for is where its name says. The module's
        // listing is not among them.
        int files = 0;
        QDirIterator it(u":/qt/qml/UIToolkitQml"_s, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            it.next();
            QCOMPARE(it.fileInfo().path(), ":/qt/qml/UIToolkitQml"_L1);
            QVERIFY2(it.fileName().endsWith(".qml"_L1) || it.fileName().endsWith(".js"_L1), qPrintable(it.fileName()));
            ++files;
        }
        QVERIFY(files > 20);
    }

    void compiledUnits_data()
    {
        const Table<bool> row{"found"};
        row("qrc:/qt/qml/UIToolkitQml/KText.qml", true);
        row("qrc:/qt/qml/UIToolkitQml/ThemeUtils.js", true);
        row("qrc:/qt/qml//UIToolkitQml/./KText.qml", true);
        row("qrc:/qt/qml/UIToolkitQml/other/../KText.qml", true);
        row("qrc:qt/qml/UIToolkitQml/KText.qml", true);
        row("qrc:/qt/qml/UIToolkitQml/%4BText.qml", true);
        row("qrc:/qt/qml/UIToolkitQml/KSwitch.qml", false);
        row("file:///qt/qml/UIToolkitQml/KText.qml", false);
        row("http://localhost/qt/qml/UIToolkitQml/KText.qml", false);
        row("QRC2:/qt/qml/UIToolkitQml/KText.qml", false);
        row("qrc:", false);
    }

    void compiledUnits()
    {
        const QUrl url(QLatin1StringView(QTest::currentDataTag()));
        QFETCH(bool, found);
        QQmlMetaType::CachedUnitLookupError error = QQmlMetaType::CachedUnitLookupError::NoError;
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
        QCOMPARE(QQmlMetaType::findCachedCompilationUnit(url, QQmlMetaType::AcceptUntyped, &error) != nullptr, found);
#else
        QCOMPARE(QQmlMetaType::findCachedCompilationUnit(url, &error) != nullptr, found);
#endif
    }

    void creationErrors_data()
    {
        const Table<QByteArray, QString> row{"companion", "message"}; // beside UIToolkitQml
        const auto rows = [&row](const QString &names, const char *companion, const QString &message) {
            for (const QString &name : names.split(u' '))
                row(name, companion, name + message);
        };
        rows(
            u"UTAlertBannerEnum UTCallControlButtonEnum UTIndicatorBadgeEnum UTIndentationBarEnum "
            u"UTListAvatarSearchItem "
            "UTPopOverEnum UTPopupEnum UTTextButtonEnum UTTooltipEnum UTMenuEnum UTDiscoverabilityEnum UTWatermarkEnum"_s,
            "", u" is a namespace and cannot be created from QML"_s);
        rows(u"UTButtonStyle UTButtonSize UTButtonType UTChipStyle"_s, "", u" enum property."_s);
        rows(u"UTPillButtonData UTTextButtonData UTMultilinePillButtonData UTRectangleButtonData UTRoundButtonData "
             "UTIconButtonData UTChipData UTPopOverData UTCallControlButtonData UTBlockButtonData UTColorSetData "
             "UTWatermarkData UTRichTextAreaData UTToolTipData UTDynamicResourceData UTKeyEventData UTEventFilterData "
             "UTShortcutOverride UTColorData"_s,
             "import UIToolkitQml_Private_Data 1.0\n", u" attached property."_s);
        rows(u"KSwitch KMessagingListView"_s, "", u".qml:-1 No such file or directory"_s);
    }

    void creationErrors()
    {
        QFETCH(QByteArray, companion);
        QFETCH(QString, message);
        const QString error = errorOf("import UIToolkitQml 1.0\n" + companion + QTest::currentDataTag() + " {}");
        QVERIFY2(error.contains(message), qPrintable(error));
    }

    void moduleBoundaries()
    {
        const QByteArray start = "import QtQuick\nimport UIToolkitQml 1.0\n";
        const QByteArray item = "Item { property int a: FontConstants.small; property int b: UTButtonStyle.OverLay; "
                                "property KMovie c: KMovie {} }";
        const QString error = errorOf(start + item);
        QVERIFY2(error.isEmpty(), qPrintable(error));

        const QByteArray native = "UTEventData {}";
        QVERIFY(errorOf(start + native).contains("UTEventData is not a type"_L1));
        QVERIFY(errorOf(start + "import UIToolkitQml_Private_Data 1.0\n" + native).isEmpty());
    }

    void metaTypes()
    {
        for (const char *name : {"UTCallControlButtonEnum::ButtonState", "UTDynamicResource::Type",
                                 "UTTextButtonEnum::TextButtonColorStyle", "UTListAvatarSearchItem::SourceModule",
                                 "UTButtonStyle::Style", "KColorSet"}) {
            QVERIFY2(QMetaType::fromName(name).isValid(), name);
        }
        QString text;
        QDebug(&text) << UTDynamicResource::Gif;
        QVERIFY2(text.contains("Gif"_L1), qPrintable(text));
    }

    void attachedInEveryEngine()
    {
        // The plugin stays loaded; an engine made later finds the same types.
        QQmlEngine second;
        const auto item =
            create(second,
                   "import QtQuick\nimport UIToolkitQml 1.0\nimport UIToolkitQml_Private_Data 1.0\n"
                   "Item { UTColorSetData.themeType: 'dark'; property QtObject data: UTColorSetData.textColorData }");
        QCOMPARE(item->property("data").value<QObject *>()->metaObject()->className(), "UTColorData");
    }

private:
    QString pluginFile() const { return QStringLiteral(UITOOLKIT_QML_DIR "/UIToolkitQml/libuitoolkitqml.so"); }
    QString errorOf(const QByteArray &source)
    {
        QQmlComponent component(&m_engine);
        component.setData(source, QUrl());
        if (component.isReady())
            delete component.create();
        return component.errorString();
    }

    QQmlEngine m_engine;
};

QTEST_MAIN(tst_Registration)
#include "tst_registration.moc"

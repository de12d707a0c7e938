#pragma once

// The QML names of the host's classes, which themselves know nothing of QML modules. A brace on the line of a Q_GADGET
// would hide it from moc.

#include <QJSEngine>
#include <QQmlEngine>
#include <QtQml/qqmlregistration.h>

#include "AccessibleMonitor.h"
#include "App.h"
#include "KColorSet.h"
#include "KCoverImageController.h"
#include "KKeyEvent.h"
#include "KKeySequence.h"
#include "KMovieImage.h"
#include "KMovieProvider.h"
#include "MediaPolicy.h"
#include "ThemeManager.h"
#include "ToolTipWindowManager.h"
#include "UIToolKitUtils.h"
#include "UTAccessible.h"
#include "UTPopOverModel.h"
#include "Utils.h"

//! Hands the application's one object to an engine, which must not delete it: other engines use it too.
template<typename T>
T *sharedInstance()
{
    QJSEngine::setObjectOwnership(T::instance(), QJSEngine::CppOwnership);
    return T::instance();
}

struct KColorSetType
{
    Q_GADGET
    QML_FOREIGN(KColorSet)
    QML_VALUE_TYPE(kColorSet)
};

struct AppType
{
    Q_GADGET
    QML_FOREIGN(App)
    QML_NAMED_ELEMENT(App)
    QML_SINGLETON

public:
    static App *create(QQmlEngine *, QJSEngine *) { return sharedInstance<App>(); }
};

struct ThemeManagerType
{
    Q_GADGET
    QML_FOREIGN(ThemeManager)
    QML_NAMED_ELEMENT(ThemeManager)
    QML_SINGLETON

public:
    static ThemeManager *create(QQmlEngine *, QJSEngine *) { return sharedInstance<ThemeManager>(); }
};

struct UtilsType
{
    Q_GADGET
    QML_FOREIGN(Utils)
    QML_NAMED_ELEMENT(Utils)
    QML_SINGLETON

public:
    static Utils *create(QQmlEngine *, QJSEngine *) { return sharedInstance<Utils>(); }
};

struct UIToolKitUtilsType
{
    Q_GADGET
    QML_FOREIGN(UIToolKitUtils)
    QML_NAMED_ELEMENT(UIToolKitUtils)
    QML_SINGLETON

public:
    static UIToolKitUtils *create(QQmlEngine *, QJSEngine *) { return sharedInstance<UIToolKitUtils>(); }
};

struct ToolTipWindowManagerType
{
    Q_GADGET
    QML_FOREIGN(ToolTipWindowManager)
    QML_NAMED_ELEMENT(ToolTipWindowManager)
    QML_SINGLETON

public:
    static ToolTipWindowManager *create(QQmlEngine *, QJSEngine *) { return sharedInstance<ToolTipWindowManager>(); }
};

struct MediaPolicyType
{
    Q_GADGET
    QML_FOREIGN(MediaPolicy)
    QML_NAMED_ELEMENT(MediaPolicy)
    QML_SINGLETON

public:
    static MediaPolicy *create(QQmlEngine *, QJSEngine *) { return sharedInstance<MediaPolicy>(); }
};

// Its QML name belongs to another module.
struct MovieType
{
    Q_GADGET
    QML_FOREIGN(QMovie)
    QML_ANONYMOUS
};

struct KMovieProviderType
{
    Q_GADGET
    QML_FOREIGN(KMovieProvider)
    QML_NAMED_ELEMENT(KMovieProvider)
};

struct KMovieImageType
{
    Q_GADGET
    QML_FOREIGN(KMovieImage)
    QML_NAMED_ELEMENT(KMovieImage)
};

struct KCoverImageControllerType
{
    Q_GADGET
    QML_FOREIGN(KCoverImageController)
    QML_NAMED_ELEMENT(KCoverImageController)
};

struct UTAccessibleInfoType
{
    Q_GADGET
    QML_FOREIGN(UTAccessibleInfo)
    QML_ANONYMOUS
};

struct UTAccessibleType
{
    Q_GADGET
    QML_FOREIGN(UTAccessible)
    QML_NAMED_ELEMENT(UTAccessible)
    QML_ATTACHED(UTAccessible)
    QML_UNCREATABLE("UTAccessible attached property.")
};

struct KKeyEventType
{
    Q_GADGET
    QML_FOREIGN(KKeyEvent)
    QML_NAMED_ELEMENT(KKeyEvent)
    QML_UNCREATABLE("Key events come from native code.")
};

struct AccessibleMonitorType
{
    Q_GADGET
    QML_FOREIGN(AccessibleMonitor)
    QML_NAMED_ELEMENT(AccessibleMonitor)
};

namespace KKeySequenceType {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(KKeySequence)
QML_NAMED_ELEMENT(KKeySequence)
} // namespace KKeySequenceType

struct UTPopOverModelType
{
    Q_GADGET
    QML_FOREIGN(UTPopOverModel)
    QML_NAMED_ELEMENT(UTPopOverModel)
};

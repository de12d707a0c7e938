#include "TypeRegistration.h"

#include "DataRegistration.h"

#include "UTAlertBannerEnum.h"
#include "UTCallControlButtonEnum.h"
#include "UTDiscoverabilityEnum.h"
#include "UTIndentationBarEnum.h"
#include "UTIndicatorBadgeEnum.h"
#include "UTListAvatarSearchItem.h"
#include "UTMenuEnum.h"
#include "UTPopOverEnum.h"
#include "UTPopupEnum.h"
#include "UTTextButtonEnum.h"
#include "UTTooltipEnum.h"
#include "UTWatermarkEnum.h"

#include <QByteArray>
#include <QUrl>
#include <QtQml/qqml.h>

namespace {

// The order of the names is part of the interface: a later registration of the same name would win.
constexpr const char *singletons[] = {"FontConstants", "AccessibleConstants"};

// KMessagingListView and KSwitch are registered although no file of either name exists, on purpose:
// creating one fails with the engine's own error for a missing file.
constexpr const char *components[] = {
    "AvatarListStandard",
    "ListItemBackground",
    "PickupNotification",
    "ContactItem",
    "KAvatar",
    "KButton",
    "KCircularProgressBar",
    "KCoverImage",
    "KCursorItem",
    "KDialogButtonBox",
    "KDropShadow",
    "KDropShadowRect",
    "KDynamicImage",
    "KDynamicAnimatedImage",
    "KEmptyState",
    "KExpandableDelegate",
    "KExpandableListView",
    "KFade",
    "KFadeStates",
    "KFlickableLineEdit",
    "KFlickableTextEdit",
    "KCustomFocusItem",
    "KFrame",
    "KFTEDialog",
    "KGradientRectangle",
    "KGradientRectangleRoundCorner",
    "KGridView",
    "KImage",
    "KItem",
    "KLineEdit",
    "KListView",
    "KMessagingListView",
    "KMenu",
    "KMenuItem",
    "KMenuSeparator",
    "KMessageBannerButton",
    "KMoveWindowArea",
    "KNamedValue",
    "KPane",
    "KPillTabBar",
    "KRectangle",
    "KResizeFrame",
    "KScrollHelper",
    "KSelfMessageAvatar",
    "KSeparator",
    "KSessionDelegate",
    "KShortcut",
    "KSlider",
    "KSpinner",
    "KSplitView",
    "KSvgIcon",
    "KSvgImage",
    "KSvgSequenceAnimated",
    "KSvgSplitButton",
    "KSwitch",
    "KTag",
    "KText",
    "KTextArea",
    "KTextEdit",
    "KTextEditElideMultiline",
    "KTextEditLink",
    "KTextElide",
    "KTextInput",
    "UTSvgResource",
};

constexpr const char *experimentalComponents[] = {"UTAiCard", "UTAiFeedback"};

constexpr const char *privateComponents[] = {
    "UTTextFieldBase",
    "UTTextAreaBase",
    "UTBannerBase",
    "UTButtonBase",
    "UTToolButton",
    "UTLabelBase",
    "UTAttachmentActionButton",
    "UTEcmCopyShareLinkButton",
    "UTEcmRefreshShareLinkButton",
    "UTEcmUpdateShareLinkButton",
    "UTEcmSharedContentsBannerText",
    "UTItemWithOverlay",
    "UTLoadingPreview",
    "UTScanInfoSpinner",
    "UTSharedContentsBannerText",
    "UTSharedContentTypeBadge",
    "UTThumbnailOverActionBlock",
    "ToolTipWithWindow",
    "WindowsButton",
};

constexpr const char *derivedComponents[] = {"DSvgButton", "DPillButton", "DSvgIconButton", "DMenu", "DMenuItem"};

struct EnumNamespace
{
    const char *name;
    const QMetaObject *metaObject;
};

constexpr EnumNamespace enumNamespaces[] = {
    {"UTAlertBannerEnum", &UTAlertBannerEnum::staticMetaObject},
    {"UTCallControlButtonEnum", &UTCallControlButtonEnum::staticMetaObject},
    {"UTIndicatorBadgeEnum", &UTIndicatorBadgeEnum::staticMetaObject},
    {"UTIndentationBarEnum", &UTIndentationBarEnum::staticMetaObject},
    {"UTListAvatarSearchItem", &UTListAvatarSearchItem::staticMetaObject},
    {"UTPopOverEnum", &UTPopOverEnum::staticMetaObject},
    {"UTPopupEnum", &UTPopupEnum::staticMetaObject},
    {"UTTextButtonEnum", &UTTextButtonEnum::staticMetaObject},
    {"UTTooltipEnum", &UTTooltipEnum::staticMetaObject},
    {"UTMenuEnum", &UTMenuEnum::staticMetaObject},
    {"UTDiscoverabilityEnum", &UTDiscoverabilityEnum::staticMetaObject},
    {"UTWatermarkEnum", &UTWatermarkEnum::staticMetaObject},
};

QUrl componentUrl(const char *name)
{
    return QUrl(QStringLiteral("qrc:/qt/qml/UIToolkitQml/%1.qml").arg(QLatin1StringView(name)));
}

template<size_t N>
void registerComponents(const char *const (&names)[N], const char *uri)
{
    for (const char *name : names)
        qmlRegisterType(componentUrl(name), uri, 1, 0, name);
}

} // namespace

void TypeRegistration::registerAll(const char *uri)
{
    const QByteArray experimentalUri = QByteArray(uri) + "_Experimental";
    const QByteArray privateUri = QByteArray(uri) + "_Private";

    for (const char *name : singletons)
        qmlRegisterSingletonType(componentUrl(name), uri, 1, 0, name);
    registerComponents(components, uri);
    registerComponents(experimentalComponents, experimentalUri.constData());
    registerComponents(privateComponents, privateUri.constData());
    registerComponents(derivedComponents, uri);

    DataRegistration::registerAll(uri);

    for (const EnumNamespace &entry : enumNamespaces) {
        qmlRegisterUncreatableMetaObject(*entry.metaObject, uri, 1, 0, entry.name,
                                         QLatin1StringView(entry.name)
                                             + QStringLiteral(" is a namespace and cannot be created from QML"));
    }
    qmlRegisterModule(uri, 1, 0);
}

#include "KMovieImage.h"

#include "App.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>

#include <memory>

namespace {

// The numbers of Image.FillMode, whose class is not public.
enum FillMode { Stretch = 0, PreserveAspectFit = 1, PreserveAspectCrop = 2, Pad = 6 };

struct Painted
{
    QRectF target;
    QRectF source;
};

QRectF centred(const QSizeF &size, const QRectF &area)
{
    return {area.center() - QPointF(size.width() / 2, size.height() / 2), size};
}

Painted place(const QSizeF &frame, const QRectF &area, int fillMode)
{
    const QRectF whole({0, 0}, frame);
    switch (fillMode) {
    case PreserveAspectFit:
        return {centred(frame.scaled(area.size(), Qt::KeepAspectRatio), area), whole};
    case PreserveAspectCrop:
        return {area, centred(area.size().scaled(frame, Qt::KeepAspectRatio), whole)};
    case Pad: {
        const QSizeF shown = frame.boundedTo(area.size());
        return {centred(shown, area), centred(shown, whole)};
    }
    default:
        return {area, whole};
    }
}

} // namespace

KMovieImage::KMovieImage(QQuickItem *parent)
    : QQuickItem(parent)
    , m_fillMode(PreserveAspectFit)
{
    setFlag(ItemHasContents);
    watchWindow(window());
    connect(App::instance(), &App::animationsDisabledChanged, this, &KMovieImage::updatePlaying);
}

KMovieImage::~KMovieImage() = default;

void KMovieImage::setMovie(QMovie *movie)
{
    if (m_movie == movie)
        return;
    if (m_movie)
        m_movie->disconnect(this);
    m_movie = movie;
    if (movie) {
        connect(movie, &QMovie::frameChanged, this, &KMovieImage::takeFrame);
        connect(movie, &QObject::destroyed, this, &KMovieImage::takeFrame);
    }
    updatePlaying();
    takeFrame();
    Q_EMIT movieChanged();
}

void KMovieImage::setFillMode(int fillMode)
{
    if (m_fillMode == fillMode)
        return;
    m_fillMode = fillMode;
    update();
    Q_EMIT fillModeChanged();
}

void KMovieImage::setMirror(bool mirror)
{
    if (m_mirror == mirror)
        return;
    m_mirror = mirror;
    update();
    Q_EMIT mirrorChanged();
}

void KMovieImage::takeFrame()
{
    m_isNewFrame = true;
    if (m_movie) {
        const QSize size = m_movie->currentImage().size();
        setImplicitSize(size.width(), size.height());
    }
    update();
}

void KMovieImage::updatePlaying()
{
    if (m_movie)
        m_movie->setPaused(App::instance()->animationsDisabled() || !isVisible() || !window()
                           || !window()->isVisible());
}

void KMovieImage::watchWindow(QQuickWindow *window)
{
    disconnect(m_window);
    if (window)
        m_window = connect(window, &QWindow::visibleChanged, this, &KMovieImage::updatePlaying);
}

void KMovieImage::itemChange(ItemChange change, const ItemChangeData &value)
{
    if (change == ItemSceneChange)
        watchWindow(value.window);
    if (change == ItemSceneChange || change == ItemVisibleHasChanged)
        updatePlaying();
    QQuickItem::itemChange(change, value);
}

void KMovieImage::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        update();
}

QSGNode *KMovieImage::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    std::unique_ptr<QSGImageNode> node(static_cast<QSGImageNode *>(oldNode));
    const QImage frame = m_movie ? m_movie->currentImage() : QImage();
    if (frame.isNull() || width() <= 0 || height() <= 0)
        return nullptr;
    if (!node || m_isNewFrame) {
        QSGTexture *texture = window()->createTextureFromImage(frame);
        if (!texture)
            return nullptr;
        if (!node) {
            node.reset(window()->createImageNode());
            node->setOwnsTexture(true);
        }
        node->setTexture(texture);
        m_isNewFrame = false;
    }
    const Painted painted = place(frame.size(), boundingRect(), m_fillMode);
    node->setRect(painted.target);
    node->setSourceRect(painted.source);
    node->setFiltering(smooth() ? QSGTexture::Linear : QSGTexture::Nearest);
    node->setTextureCoordinatesTransform(m_mirror ? QSGImageNode::MirrorHorizontally : QSGImageNode::NoTransform);
    return node.release();
}

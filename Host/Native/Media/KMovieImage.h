#pragma once

#include <QMovie>
#include <QPointer>
#include <QQuickItem>

#include "korvuui_export.h"

//! Shows the frames of a film, as large as the item. While nobody can see it the film rests.
class KORVUUI_EXPORT KMovieImage : public QQuickItem
{
    Q_OBJECT
    //! Null for nothing to show. It stays its owner's.
    Q_PROPERTY(QMovie *movie READ movie WRITE setMovie NOTIFY movieChanged FINAL)
    //! Image.Stretch, PreserveAspectFit (the default), PreserveAspectCrop or Pad; what Image would tile is stretched.
    Q_PROPERTY(int fillMode READ fillMode WRITE setFillMode NOTIFY fillModeChanged FINAL)
    //! Swaps left and right.
    Q_PROPERTY(bool mirror READ mirror WRITE setMirror NOTIFY mirrorChanged FINAL)

public:
    explicit KMovieImage(QQuickItem *parent = nullptr);
    ~KMovieImage() override;

    QMovie *movie() const { return m_movie; }
    int fillMode() const { return m_fillMode; }
    bool mirror() const { return m_mirror; }

    void setMovie(QMovie *movie);
    void setFillMode(int fillMode);
    void setMirror(bool mirror);

Q_SIGNALS:
    void movieChanged();
    void fillModeChanged();
    void mirrorChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void takeFrame();
    void updatePlaying();
    void watchWindow(QQuickWindow *window);

    QPointer<QMovie> m_movie;
    QMetaObject::Connection m_window;
    int m_fillMode;
    bool m_mirror = false;
    bool m_isNewFrame = false;
};

#pragma once

#include <QMovie>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

#include <memory>

#include "korvuui_export.h"

class MediaFetch;

//! Fetches a film, as far as MediaPolicy allows.
class KORVUUI_EXPORT KMovieProvider : public QObject
{
    Q_OBJECT
    //! The film, playing; null while there is none. It is gone with the provider or the next call of fetch.
    Q_PROPERTY(QMovie *movie READ movie NOTIFY movieChanged FINAL)
    //! The page of a stack to show: 0 while waiting, 1 for the film, 2 for the fallback.
    Q_PROPERTY(int stackIndex READ stackIndex NOTIFY stackIndexChanged FINAL)
    //! Width of the film by its height; 0 while there is none.
    Q_PROPERTY(qreal aspectRatio READ aspectRatio NOTIFY aspectRatioChanged FINAL)
    //! The source of an Image that shows the fallback. Empty while it is not needed, or if there is none.
    Q_PROPERTY(QUrl fallbackSource READ fallbackSource NOTIFY fallbackSourceChanged FINAL)

public:
    //! The pages of the stack.
    enum class Page { Waiting, Movie, Fallback };
    Q_ENUM(Page)

    explicit KMovieProvider(QObject *parent = nullptr);
    ~KMovieProvider() override;

    QMovie *movie() const { return m_movie.get(); }
    int stackIndex() const { return int(m_page); }
    qreal aspectRatio() const { return m_aspectRatio; }
    QUrl fallbackSource() const { return m_fallbackSource; }

    //! Drops what there was and fetches \a source: an "image://dynamic/..." or the address of a film. What is refused,
    //! late or no film is warned about once and leads to the fallback. An empty source leaves the provider waiting.
    Q_INVOKABLE void fetch(const QString &source);

Q_SIGNALS:
    void movieChanged();
    void stackIndexChanged();
    void aspectRatioChanged();
    void fallbackSourceChanged();

private:
    void take(const QByteArray &data, const MediaFetch &fetch);
    void fallBack();
    void show(Page page, std::unique_ptr<QMovie> movie, const QUrl &fallbackSource);

    std::unique_ptr<MediaFetch> m_fetch;
    std::unique_ptr<QMovie> m_movie;
    Page m_page = Page::Waiting;
    qreal m_aspectRatio = 0;
    QString m_fallback;
    QUrl m_fallbackSource;
};

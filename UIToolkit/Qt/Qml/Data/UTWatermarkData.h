#pragma once

#include "KObject.h"
#include "UTWatermarkEnum.h"

#include <QString>
#include <QtQml/qqml.h>

/*! The metrics of the text that a watermark repeats. */
class UTWatermarkData : public KObject
{
    Q_OBJECT
    //! A text for the application's own use; the component has its own property for what it shows.
    Q_PROPERTY(QString contextText READ contextText WRITE setContextText NOTIFY contextTextChanged FINAL)
    //! Medium by default. Changing it sets the metrics below; an unknown number leaves them as they are.
    Q_PROPERTY(UTWatermarkEnum::WatermarkSize watermarkSize READ watermarkSize WRITE setWatermarkSize NOTIFY
                   watermarkSizeChanged FINAL)
    Q_PROPERTY(int fontPointSize READ fontPointSize WRITE setFontPointSize NOTIFY fontPointSizeChanged FINAL)
    //! Room around a repetition, in pixels.
    Q_PROPERTY(int watermarkHeight READ watermarkHeight WRITE setWatermarkHeight NOTIFY watermarkHeightChanged FINAL)
    Q_PROPERTY(int watermarkWidth READ watermarkWidth WRITE setWatermarkWidth NOTIFY watermarkWidthChanged FINAL)
    //! Degrees, clockwise.
    Q_PROPERTY(int rotationAngle READ rotationAngle WRITE setRotationAngle NOTIFY rotationAngleChanged FINAL)

public:
    explicit UTWatermarkData(QObject *attachee = nullptr);

    static UTWatermarkData *qmlAttachedProperties(QObject *attachee) { return new UTWatermarkData(attachee); }

    QString contextText() const { return m_contextText; }
    UTWatermarkEnum::WatermarkSize watermarkSize() const { return m_watermarkSize; }
    int fontPointSize() const { return m_fontPointSize; }
    int watermarkHeight() const { return m_watermarkHeight; }
    int watermarkWidth() const { return m_watermarkWidth; }
    int rotationAngle() const { return m_rotationAngle; }

    void setContextText(const QString &text) { set(m_contextText, text, &UTWatermarkData::contextTextChanged); }
    void setWatermarkSize(UTWatermarkEnum::WatermarkSize size)
    {
        set(m_watermarkSize, size, &UTWatermarkData::watermarkSizeChanged);
    }
    void setFontPointSize(int size) { set(m_fontPointSize, size, &UTWatermarkData::fontPointSizeChanged); }
    void setWatermarkHeight(int height) { set(m_watermarkHeight, height, &UTWatermarkData::watermarkHeightChanged); }
    void setWatermarkWidth(int width) { set(m_watermarkWidth, width, &UTWatermarkData::watermarkWidthChanged); }
    void setRotationAngle(int angle) { set(m_rotationAngle, angle, &UTWatermarkData::rotationAngleChanged); }

public Q_SLOTS:
    //! Sets the metrics to those of the size.
    void refresh();

Q_SIGNALS:
    void contextTextChanged();
    void watermarkSizeChanged();
    void fontPointSizeChanged();
    void watermarkHeightChanged();
    void watermarkWidthChanged();
    void rotationAngleChanged();

private:
    QString m_contextText;
    UTWatermarkEnum::WatermarkSize m_watermarkSize = UTWatermarkEnum::Medium;
    int m_fontPointSize;
    int m_watermarkHeight;
    int m_watermarkWidth;
    int m_rotationAngle;
};

QML_DECLARE_TYPEINFO(UTWatermarkData, QML_HAS_ATTACHED_PROPERTIES)

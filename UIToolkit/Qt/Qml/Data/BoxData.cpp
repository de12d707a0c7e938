#include "BoxData.h"

using namespace Qt::StringLiterals;

void BoxData::paintPartsOf(QObject *item)
{
    m_item = qobject_cast<QQuickItem *>(item);
    if (m_item)
        connect(m_item, &QQuickItem::childrenChanged, this, &BoxData::findParts);
}

void BoxData::findParts()
{
    const QList<QQuickItem *> parts = m_item->childItems();
    for (QQuickItem *part : parts) {
        if (part != m_ground && part->objectName() == "ground"_L1)
            setGround(part);
        else if (part != m_label && part->objectName() == "label"_L1)
            setLabel(part);
    }
}

void BoxData::setGround(QQuickItem *part)
{
    if (!m_followsGround) {
        m_followsGround = true;
        connect(this, &BoxData::radiusChanged, this, &BoxData::paintGround);
        connect(this, &BoxData::borderChanged, this, &BoxData::paintGround);
        connect(backgroundColorData(), &UTColorData::colorChanged, this, &BoxData::paintGround);
        connect(borderColorData(), &UTColorData::colorChanged, this, &BoxData::paintGround);
    }
    m_ground = part;
    paintGround();
}

void BoxData::setLabel(QQuickItem *part)
{
    if (!m_followsLabel) {
        m_followsLabel = true;
        connect(textColorData(), &UTColorData::colorChanged, this, &BoxData::paintLabel);
    }
    m_label = part;
    paintLabel();
}

void BoxData::paintGround()
{
    if (!m_ground)
        return;
    m_ground->setProperty("radius", radius());
    m_ground->setProperty("color", backgroundColorData()->color());
    auto *line = m_ground->property("border").value<QObject *>();
    line->setProperty("color", borderColorData()->color());
    line->setProperty("width", border());
}

void BoxData::paintLabel()
{
    if (m_label)
        m_label->setProperty("color", textColorData()->color());
}

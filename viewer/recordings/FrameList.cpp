#include "viewer/recordings/FrameList.h"

#include "viewer/cameras/FrameTime.h"

FrameList::FrameList(const RecordingInfo& info, const QVector<QImage>& images) : m_images(images) {
    m_info = info;
    m_info.frames = images.size();
    if (!images.isEmpty()) {
        m_info.size = images.first().size();
        m_info.color = images.first().format() == QImage::Format_RGB888;
    }
}

Frame FrameList::frame(int index) const {
    Frame frame;
    frame.image = m_images.value(index);
    frame.bitDepth = m_info.bitDepth;
    frame.number = m_info.firstNumber + quint32(index);
    frame.time = m_info.rate > 0 ? FrameTime::startOf(frame.number, m_info.rate) : 0;
    frame.area = m_info.area.isNull() ? QRect(QPoint(0, 0), m_info.size) : m_info.area;
    return frame;
}

#pragma once

#include "livecontrol/interface/DOC_Geometry.h"
#include "viewer/documents/adapters/AdapterBase.h"

class GeometryAdapter : public DOC_Geometry, private AdapterBase {
public:
    explicit GeometryAdapter(Document& document) : AdapterBase(document) {}

    QSize getImageSize() override;
    QPixmap renderThumbnail(int kind, int width, int height, PARTITIONNUMBER partition, int frame,
                            QDateTime* dateTime) override;
    void setPointerPos(const QPoint& point) override;
    QPoint getPointerPos() override;
    QPoint mapViewToImage(const QPoint& point, bool clamp) override;
    QRect mapRectToView(const QRect& rect, bool clip) override;
    QPointF mapOriginalToUserview(const QPointF& point, int kind) override;
    QPointF mapUserviewToOriginal(const QPointF& point) override;
    QPoint mapCameraToOriginal(const QPoint& point, bool full) override;
    QPoint mapOriginalToCamera(const QPoint& point) override;
    bool isAxisSwapped() override;
    QVariant getInfoMap(int kind, int frame, bool convert, bool layout, int all) override;
    QString getComment() override;
    void setComment(const QString& text) override;
    QString getLogoPath() override;
    void setLogoPath(const QString& path) override;
};

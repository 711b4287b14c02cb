#pragma once

#include "livecontrol/live/LivePlugin.h"
#include "livecontrol/plugin/PLG_HTML.h"

class JS_Mediator_DeviceList;
class JS_Mediator_LiveControl;

/// The live control plug-in: names the side panel page, owns the two script objects of it, keeps the
/// rectangle that the user edits on the live image and draws the overlays of the live image.
class PLG_livecontrol : public PLG_HTML, public LivePlugin {
    Q_OBJECT

public:
    PLG_livecontrol();
    ~PLG_livecontrol() override;

    void init(HostObject* host) override;
    void onHostDeactivated() override {}
    /// Tells the page only; the widget repaints with each new set of bins.
    void update() override;
    void paintOverlay(DOC_Interface* document, bool pass, IMG_FrameBuffer* frame) override;
    void callPage(int livePage) override;
    void setVariableRegist(const QString& channel) override;
    bool isAreaPage() override;
    int getLastPage() override;
    bool isAreaEditable(DOC_Interface* document) override;
    bool isAreaShown(DOC_Interface* document) override;
    QRect getArea() override { return m_selectArea; }
    /// Stores the rectangle and tells the page. Does nothing off the plug-in's thread.
    void setArea(DOC_Interface* document, const QRect& area, bool final) override;

    /// A new histogram for the setting page that asks for it.
    void createWidget() override;
    void clearWidget() override { PLG_Common::clearWidget(); }
    void setHistogramVisible(bool visible) override;
    void setHistogramBitDepth(int bits) override { m_histogramBitDepth = static_cast<quint8>(bits); }
    void setVariableAreaLocked(bool locked) override { m_variableAreaLocked = locked; }
    QRect getSelectArea() const override { return m_selectArea; }
    void setSelectArea(const QRect& area) override { m_selectArea = area; }
    void setAreaConstraints(const QPoint& posStep, const QSize& sizeStep, const QSize& maxSize,
                            const QSize& minSize, bool centerX, bool centerY) override {
        PLG_Common::setAreaConstraints(posStep, sizeStep, maxSize, minSize, centerX, centerY);
    }
    void tellTriggerParameterApplied() override;
    bool isCustomInfoWanted() override { return isCustomInfoEnabled(); }
    bool isSelectAreaNull() const override {
        return m_selectArea.left() > m_selectArea.right() || m_selectArea.top() > m_selectArea.bottom();
    }

public slots:
    /// The host's observer of the camera links reports or withdraws its warning.
    void slotPhaseAdjustWarning(bool isWarn);

private:
    /// Low-light type whose documents show their resolution as a rectangle.
    static constexpr int kLowLightShowsArea = 2;

    JS_Mediator_LiveControl* liveControl() const;
    bool isAreaSetting();
    bool isCurrentOrLocked(DOC_Interface* document);
    void showHistogram(IMG_FrameBuffer& frame);

    QRect m_selectArea;
    bool m_histogramVisible = false;
    bool m_variableAreaLocked = false;
    quint8 m_histogramBitDepth = 0;
    std::unique_ptr<JS_Mediator_DeviceList> m_deviceListMediator;
};

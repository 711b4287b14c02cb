#include "livecontrol/plugin/PLG_Common.h"

#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/foundation/UTL_TextCache.h"
#include "livecontrol/foundation/WindowHelpers.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/JS_Mediator.h"
#include "livecontrol/web/GUI_ModelessPatternDialog.h"

#include <QGuiApplication>
#include <QMutexLocker>
#include <QTimer>

PLG_Common::PLG_Common()
    : m_textCache(std::make_unique<UTL_TextCache>()), m_mutex(std::make_unique<QRecursiveMutex>()) {}

// Hosts rely on the order: the lock goes first, so nothing may paint any more.
PLG_Common::~PLG_Common() {
    m_mutex.reset();
    m_mediator.reset();
    m_textCache.reset();
    m_dialog.reset();
}

void PLG_Common::init(HostObject* host) {
    if (!host || m_host) {
        qWarning() << (host ? "init: a plug-in has one host" : "init: there is no host");
        return;
    }
    m_host = host;
}

bool PLG_Common::isReady(const char* operation) const {
    if (!m_host) {
        qWarning() << operation << "is called before init";
    }
    return m_host;
}

void PLG_Common::tellFailure(const char* operation, std::exception& error) {
    const QByteArray what = error.what();
    QByteArray& last = m_failures[operation];
    if (last != what) {
        last = what;
        reportFailure(m_host, error);
    }
}

void PLG_Common::onHostDeactivated() {
    if (m_kind == 6) {
        closeDialog();
    }
}

void PLG_Common::update() {
    if (m_widget && m_widget->isActiveWindow()) {
        m_widget->repaint();
    }
    if (m_mediator) {
        emit m_mediator->update();
    }
}

void PLG_Common::onPaintImage(DOC_Interface* document, bool pass, IMG_FrameBuffer* frame, bool lock) {
    if (!document) {
        return;
    }
    called("onPaintImage", [&] {
        const QMutexLocker locker(lock ? m_mutex.get() : nullptr);
        paintImage(document, pass, frame);
    });
}

void PLG_Common::onPaintOverlay(DOC_Interface* document, bool pass, IMG_FrameBuffer* frame) {
    if (document) {
        called("onPaintOverlay", [&] { paintOverlay(document, pass, frame); });
    }
}

void PLG_Common::onPaintExtra(DOC_Interface* document, bool pass, IMG_FrameBuffer* frame) {
    if (document) {
        called("onPaintExtra", [&] { paintExtra(document, pass, frame); });
    }
}

// A page that is never opened stays as it was loaded, and nobody would know why.
static void watchOpening(JS_Mediator& mediator, const QString& name) {
    constexpr int kPatienceMs = 15000;
    const QString once = QStringLiteral("unopened");
    if (mediator.findChild<QTimer*>(once)) {
        return;
    }
    auto* const timer = new QTimer(&mediator);
    timer->setObjectName(once);
    timer->setSingleShot(true);
    timer->start(kPatienceMs);
    QObject::connect(&mediator, &JS_Mediator::open, timer, &QTimer::stop);
    QObject::connect(timer, &QTimer::timeout, [name] {
        qWarning() << "The page of" << name << "was taken, but no open() came from its host";
    });
}

QString PLG_Common::getHtml() {
    if (m_mediator) {
        watchOpening(*m_mediator, m_name);
    }
    const QString path = QStringLiteral(":/%1.html").arg(m_name);
    const QString text = readTextResource(path);
    if (text.isEmpty()) {
        qWarning() << "Not Found" << path;
    }
    return text;
}

bool PLG_Common::isEnabledInMode(int mode) {
    return mode >= 0 && mode <= 2 && ((m_modeMask >> mode) & 1U) != 0;
}

bool PLG_Common::isEnabled() {
    return called(
        "isEnabled", [&] { return isEnabledInMode(m_host->getMode()); }, false);
}

void PLG_Common::mouseLeave() {
    m_pointerDocKey = kInvalidDockey;
    QGuiApplication::restoreOverrideCursor();
}

QPoint PLG_Common::getDocumentPointerPos(DOCKEY key) {
    return called(
        "getDocumentPointerPos",
        [&] {
            DOC_Interface* const document = m_host->docByKey(key, true);
            return document ? docAs<DOC_Geometry>(document).getPointerPos() : QPoint();
        },
        QPoint());
}

bool PLG_Common::hasDocument(DOCKEY key) {
    return isReady("hasDocument") && m_host->docByKey(key, true) != nullptr;
}

void PLG_Common::setMediator(std::unique_ptr<JS_Mediator> mediator) {
    m_mediator = std::move(mediator);
    m_host->addMediator(m_mediator.get());
}

void PLG_Common::setAreaConstraints(const QPoint& posStep, const QSize& sizeStep, const QSize& maxSize,
                                    const QSize& minSize, bool centerX, bool centerY) {
    m_posStep = posStep;
    m_sizeStep = sizeStep;
    m_maxSize = maxSize;
    m_minSize = minSize;
    m_centerX = centerX;
    m_centerY = centerY;
}

int PLG_Common::currentView() { return isReady("currentView") && m_host->isFileMode() ? 1 : 0; }

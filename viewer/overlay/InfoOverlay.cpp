#include "viewer/overlay/InfoOverlay.h"

#include "viewer/documents/Document.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/messages/Translated.h"

#include <QFileInfo>

namespace {

/// In the logo's place, so that the user sees it who has just chosen that file. No saved picture has it.
void tellBrokenLogo(QVector<InfoLine>& lines, const QString& path) {
    for (InfoLine& line : lines) {
        if (line.kind == InfoLine::Kind::Logo) {
            line.kind = InfoLine::Kind::Text;
            line.text = translated("The logo can't be shown: %1").arg(QFileInfo(path).fileName());
        }
    }
}

} // namespace

bool InfoOverlay::update(const Document& document, OverlayPreferences& preferences, const Place& place) {
    const OverlaySettings& settings = preferences.settings();
    InfoFacts facts = InfoFacts::of(document);
    if (facts.mode == HOST_MODE_LIVE && settings.isShown("TimeIrigCode")) {
        facts.clock = QDateTime::currentSecsSinceEpoch();
    }
    const QString& logo = facts.mode == HOST_MODE_FILE ? facts.logoPath : settings.logoPath;
    const bool isNewLogo = m_logo.follow(settings.isShown("Logo") ? logo : QString());
    const bool isNewStyle =
        m_layouts == 0 || isNewLogo || preferences.revision() != m_revision || !(place == m_place);
    if (!isNewStyle && facts == m_facts) {
        return false;
    }
    QVector<InfoLine> lines = InfoText::lines(facts, settings, document.list().displayFormat());
    if (m_logo.isBroken()) {
        tellBrokenLogo(lines, logo);
    }
    m_facts = facts;
    m_revision = preferences.revision();
    m_place = place;
    if (!isNewStyle && lines == m_lines) {
        return false;
    }
    m_lines = std::move(lines);
    const auto room = OverlayLayout::Room::over(place.view, place.margin, settings.style.font());
    m_layout = OverlayLayout(m_lines, settings.style, m_logo.image(), room);
    m_image = m_layout.image(place.pixelRatio);
    ++m_layouts;
    return true;
}

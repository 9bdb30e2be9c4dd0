#include "shop/CheckPanel.h"

#include "shell/Localisation.h"

#include <QListWidget>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

constexpr int controlRole = Qt::UserRole;
constexpr int rowRole = Qt::UserRole + 1;
constexpr int linesOfOneCause = 3;

void add(QListWidget &list, const QString &line, const QString &control, int row = 0)
{
    auto *item = new QListWidgetItem(line, &list);
    item->setData(controlRole, control);
    item->setData(rowRole, row);
}

} // namespace

void CheckPanel::fill(QListWidget &list, const RunReport &report, const std::vector<Finding> &findings,
                      const Localisation &localisation)
{
    list.clear();
    const Localisation texts = localisation.held();
    QSet<QString> picturesTold;
    bool logoTold = false;
    int lost = 0;
    for (const Incident &incident : report.incidents()) {
        // One character in the banner is lost in every page.
        if (incident.kind == Incident::CharactersLost && ++lost > linesOfOneCause)
            continue;
        const bool isLogo = incident.kind == Incident::LogoNotCopied;
        logoTold = logoTold || isLogo;
        add(list, describe(incident, texts), isLogo ? u"txtFile"_s : QString());
        if (incident.kind == Incident::PictureNotCopied)
            picturesTold.insert(incident.piece);
    }
    if (lost > linesOfOneCause) {
        Localisation windows = texts;
        windows.gbLangueCatalogue = false;
        add(list,
            windows.textOr(u"RUN"_s, u"more4"_s, u"… et %1 autres fichiers"_s)
                .replace(u"%1"_s, QString::number(lost - linesOfOneCause)),
            {});
    }
    for (const Finding &finding : findings) {
        // A picture that the run has missed already needs no second line.
        const bool isLogo = !finding.control.isEmpty();
        if (finding.kind == Finding::PictureGone
            && (isLogo ? logoTold : picturesTold.contains(finding.subject.section(u" / "_s, 1))))
            continue;
        add(list, describe(finding, texts), finding.control, finding.row);
    }
}

QString CheckPanel::controlOf(const QListWidgetItem &line)
{
    return line.data(controlRole).toString();
}

int CheckPanel::rowOf(const QListWidgetItem &line)
{
    return line.data(rowRole).toInt();
}

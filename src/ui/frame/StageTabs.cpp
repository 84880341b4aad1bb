#include "ui/frame/StageTabs.h"

#include <QPainter>
#include <QStyle>

#include "app/CommandReports.h"
#include "model/StageTable.h"

namespace vorlan {

namespace {
// There are fewer stages; a damaged file can hold any number of tabs, with texts of any length.
constexpr qsizetype kMostTabs = 64;
constexpr qsizetype kLongestText = 128;

/// A clock: the results are of an earlier record.
QIcon clockIcon(int size, const QColor& colour, double ratio) {
    QPixmap picture(QSize(size, size) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, size / 10.0));
    const QRectF face = QRectF(0.0, 0.0, size, size).adjusted(1.5, 1.5, -1.5, -1.5);
    painter.drawEllipse(face);
    painter.drawLine(face.center(), QPointF(face.center().x(), face.top() + face.height() * 0.2));
    painter.drawLine(face.center(), QPointF(face.right() - face.width() * 0.22, face.center().y()));
    return picture;
}

}  // namespace

StageTabs::StageTabs(QWidget* parent) : QTabBar(parent) {
    setObjectName(QStringLiteral("StageTabs"));
    setAccessibleName(QStringLiteral("Stages"));
    setExpanding(false);
    setDrawBase(false);
    setFocusPolicy(Qt::TabFocus);
    oldMark_ = clockIcon(iconSize().height(), palette().color(QPalette::WindowText), devicePixelRatioF());
    // An empty control keeps its height, so that the panes do not jump when a probe is selected.
    addTab(QStringLiteral("Pre-Processing"));
    setMinimumHeight(sizeHint().height());
    removeTab(0);
    connect(this, &QTabBar::currentChanged, this, [this](int index) {
        if (!refreshing_ && index >= 0) {
            Q_EMIT stageChosen(index);
        }
    });
}

void StageTabs::markOld(const CVorl_ADVDoc& document) {
    for (int i = 0; i < count(); ++i) {
        const StageRow* row = stageNumbered(document.Probe().tabItems.GetAt(i).imageIndex);
        const bool old = row != nullptr && row->mark && document.Probe().IsOld(*row->mark);
        setTabIcon(i, old ? oldMark_ : QIcon());
        setTabToolTip(i, old ? QString::fromLatin1(kEarlierResultsReport) : QString());
    }
}

void StageTabs::refresh(const CVorl_ADVDoc& document) {
    refreshing_ = true;
    QStringList texts;
    if (document.HasProbe()) {
        for (const TabItem& item : document.Probe().tabItems) {
            if (texts.size() < kMostTabs) {
                texts.append(QString::fromStdString(item.text.substr(0, kLongestText)));
            }
        }
    }
    QStringList shown;
    for (int i = 0; i < count(); ++i) {
        shown.append(tabText(i));
    }
    if (shown != texts) {
        while (count() > 0) {
            removeTab(count() - 1);
        }
        for (const QString& text : texts) {
            addTab(text);
        }
    }
    markOld(document);
    setCurrentIndex(document.ShownTab());
    setEnabled(!document.IsRunning());
    refreshing_ = false;
}

}  // namespace vorlan

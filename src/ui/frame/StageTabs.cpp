#include "ui/frame/StageTabs.h"

namespace vorlan {

namespace {
// There are fewer stages; a damaged file can hold any number of tabs, with texts of any length.
constexpr qsizetype kMostTabs = 64;
constexpr qsizetype kLongestText = 128;
}  // namespace

StageTabs::StageTabs(QWidget* parent) : QTabBar(parent) {
    setObjectName(QStringLiteral("StageTabs"));
    setAccessibleName(QStringLiteral("Stages"));
    setExpanding(false);
    setDrawBase(false);
    setFocusPolicy(Qt::TabFocus);
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
    setCurrentIndex(document.ShownTab());
    setEnabled(!document.IsRunning());
    refreshing_ = false;
}

}  // namespace vorlan

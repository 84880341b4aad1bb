#include "ui/frame/SelectionBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include "model/Index.h"
#include "model/ProbeInformation.h"
#include "model/Text.h"
#include "ui/dialogs/NameSelector.h"

namespace vorlan {

namespace {

void fill(QComboBox& selector, const QStringList& texts, int index) {
    const QSignalBlocker quiet(selector);
    QStringList shown;
    for (int i = 0; i < selector.count(); ++i) {
        shown.append(selector.itemText(i));
    }
    if (shown != texts) {
        selector.clear();
        selector.addItems(texts);
    }
    selector.setCurrentIndex(index);
}

}  // namespace

SelectionBar::SelectionBar(QWidget* parent) : QToolBar(QStringLiteral("Data Selection"), parent) {
    setObjectName(QStringLiteral("SelectionBar"));
    files_ = addSelector(QStringLiteral("&Data files:"), QStringLiteral("Data files"), 22, QStringLiteral("record"));
    probes_ = addSelector(QStringLiteral("Pro&bes:"), QStringLiteral("Probes"), 10, QStringLiteral("Probe 99"));
    values_ = addSelector(QStringLiteral("Physica&l values:"), QStringLiteral("Physical values"), 10,
                          QStringLiteral("Velocities"));
    panes_ =
        addSelector(QStringLiteral("A&ctive view:"), QStringLiteral("Active view"), 12, QStringLiteral("Right bottom"));
    values_->addItems({QStringLiteral("Velocities"), QStringLiteral("Stresses")});
    for (const char* text : kPaneTexts) {
        panes_->addItem(QString::fromUtf8(text));
    }
    // "activated" speaks only of the user's choices.
    connect(files_, &QComboBox::activated, this, &SelectionBar::fileChosen);
    connect(probes_, &QComboBox::activated, this, &SelectionBar::probeChosen);
    connect(values_, &QComboBox::activated, this,
            [this](int index) { Q_EMIT valueChosen(static_cast<PhysicalValue>(index)); });
    connect(panes_, &QComboBox::activated, this, [this](int index) { Q_EMIT paneChosen(static_cast<Pane>(index)); });
}

QComboBox* SelectionBar::addSelector(const QString& label, const QString& toolTip, int characters,
                                     const QString& shortest) {
    auto* selector = new NameSelector(toolTip, this);
    selector->setObjectName(toolTip);
    selector->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    selector->setMinimumContentsLength(characters);
    // In a narrow window a selector shrinks to such a text before the bar hides it.
    const QFontMetrics metrics(selector->font());
    selector->setMinimumWidth(selector->sizeHint().width() - characters * metrics.horizontalAdvance(QLatin1Char('X')) +
                              metrics.horizontalAdvance(shortest));
    // A caption never stands without its selector.
    auto* field = new QWidget(this);
    auto* row = new QHBoxLayout(field);
    row->setContentsMargins(4, 0, 4, 0);
    row->setSpacing(4);
    auto* caption = new QLabel(label, field);
    caption->setBuddy(selector);
    row->addWidget(caption);
    row->addWidget(selector);
    addWidget(field);
    return selector;
}

void SelectionBar::refresh(const CVorl_ADVDoc& document) {
    QStringList fileTexts;
    for (const SAdvFile& file : document.GetWorkspace().dataFiles.files) {
        fileTexts.append(QString::fromStdString(utf8Text(file.fileName)));
    }
    QStringList probeTexts;
    if (document.HasFile()) {
        for (const SAdvProbe& probe : document.File().probes) {
            probeTexts.append(QString::fromStdString(probeListText(probe)));
        }
    }
    // What is not chosen yet says so; an empty list has nothing to choose.
    files_->setPlaceholderText(fileTexts.isEmpty() ? QString() : QStringLiteral("Choose a data file"));
    probes_->setPlaceholderText(probeTexts.isEmpty() ? QString() : QStringLiteral("Choose a probe"));
    fill(*files_, fileTexts, document.ActiveFile());
    fill(*probes_, probeTexts, document.ActiveProbe());
    {
        const QSignalBlocker quietValues(values_);
        const QSignalBlocker quietPanes(panes_);
        values_->setCurrentIndex(asInt(document.CurrentValue()));
        panes_->setCurrentIndex(asInt(document.ActivePane()));
    }
    const bool free = !document.IsRunning();
    files_->setEnabled(free);
    probes_->setEnabled(free && document.HasFile());
    values_->setEnabled(free);
    panes_->setEnabled(free);
}

}  // namespace vorlan

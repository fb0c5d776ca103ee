#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include "desktop/look/Card.h"
#include "desktop/look/ColorSwatchButton.h"
#include "desktop/look/ElidedLabel.h"
#include "desktop/look/gallery/Pages.h"
#include "desktop/look/IconButton.h"
#include "desktop/look/IconTable.h"
#include "desktop/look/ProgressLine.h"
#include "desktop/look/SectionCaption.h"
#include "desktop/look/SpinArrows.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

namespace {

class Ground : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(kCanvas));
        QLinearGradient sky(0, 0, 0, 380);
        sky.setColorAt(0, QColor(0x6f, 0x9c, 0xc8));
        sky.setColorAt(1, QColor(0xd9, 0xc7, 0xa6));
        painter.fillRect(QRect(0, 0, 620, 380), sky);
    }
};

QHBoxLayout* ButtonRow(std::initializer_list<const char*> controls) {
    auto* row = new QHBoxLayout;
    row->setSpacing(kSpaceSmall);
    for (const char* control : controls) {
        const std::string_view icon = IconOf(control);
        row->addWidget(new IconButton(QString::fromUtf8(icon.data(), static_cast<qsizetype>(icon.size()))));
    }
    row->addStretch();
    return row;
}

QLineEdit* Short(const char* text) {
    auto* edit = new QLineEdit(QString::fromLatin1(text));
    edit->setFixedWidth(56);
    return edit;
}

QLayout* Names() {
    auto* column = new QVBoxLayout;
    column->setSpacing(kSpaceSmall);
    column->addWidget(new SectionCaption(QStringLiteral("Material")));
    auto* name = new QComboBox;
    name->setEditable(true);
    name->addItems({QStringLiteral("Art_0013"), QStringLiteral("Metal_")});
    auto* row = new QHBoxLayout;
    row->setSpacing(kSpaceSmall);
    row->addWidget(name, 1);
    row->addWidget(new IconButton(u"read-prefixes"));
    row->addWidget(new IconButton(u"fast-save"));
    column->addLayout(row);
    auto* counter = new QHBoxLayout;
    counter->setSpacing(kSpaceSmall);
    auto* increment = new QCheckBox(QStringLiteral("Increment"));
    increment->setChecked(true);
    counter->addWidget(increment);
    auto* count = Short("13");
    QPalette accent = count->palette();
    accent.setColor(QPalette::Base, QColor(kAccent));
    accent.setColor(QPalette::Text, Qt::black);
    count->setPalette(accent);
    counter->addWidget(count);
    counter->addWidget(new SpinArrows);
    counter->addWidget(new IconButton(u"reset-counter"));
    counter->addStretch();
    column->addLayout(counter);
    return column;
}

Card* RightPanel() {
    auto* card = new Card;
    auto* column = new QVBoxLayout;
    card->SetBody(column);
    column->addLayout(Names());
    column->addWidget(new SectionCaption(QStringLiteral("Library")));
    column->addLayout(
        ButtonRow({"cmdMatDirs(0)", "cmdMatDirs(1)", "cmdMatDirs(2)", "cmdMatDirs(3)", "cmdMatDirs(4)"}));
    column->addLayout(
        ButtonRow({"cmdMatDirs(5)", "cmdMatDirs(6)", "cmdMatDirs(7)", "cmdMatDirs(8)", "cmdMatDirs(9)"}));
    auto* files = new QListWidget;
    for (int i = 1; i < 30; ++i)
        files->addItem(QStringLiteral("Art_%1.jpg").arg(i));
    files->setCurrentRow(3);
    column->addWidget(files, 1);
    column->addWidget(new ElidedLabel(QStringLiteral("/home/texturer/Support/Materials/Art/Art_4.jpg")));
    auto* row = new QHBoxLayout;
    auto* pattern = new QComboBox;
    pattern->addItems({QStringLiteral("*.jpg"), QStringLiteral("*.bmp")});
    row->addWidget(pattern);
    row->addWidget(new SectionCaption(QStringLiteral("29 Files")));
    row->addStretch();
    row->addWidget(new IconButton(u"back-to-library"));
    row->addWidget(new IconButton(u"refresh-files"));
    column->addLayout(row);
    card->setFixedWidth(280);
    return card;
}

Card* LowerPanel() {
    auto* card = new Card;
    auto* column = new QVBoxLayout;
    column->setSpacing(kSpaceSmall);
    card->SetBody(column);
    QHBoxLayout* row = ButtonRow({"Command23", "Command5", "Command8", "Command12"});
    row->addSpacing(kSpaceLarge);
    row->addWidget(new QLabel(QStringLiteral("Crop")));
    row->addWidget(Short("200"));
    row->addWidget(new QLabel(QStringLiteral("\u00d7")));
    row->addWidget(Short("200"));
    row->addWidget(new QCheckBox(QStringLiteral("Lock")));
    row->addSpacing(kSpaceLarge);
    const QRgb colours[] = {0xffffff00, 0xff404040, 0xffff00ff, 0xff000000};
    const char16_t* icons[] = {u"hairline-colour", u"canvas-colour", u"image-fx", u"gradient-fx"};
    for (int i = 0; i < 4; ++i) {
        auto* swatch = new ColorSwatchButton(icons[i]);
        swatch->SetColour(QColor(colours[i]));
        row->addWidget(swatch);
    }
    row->addSpacing(kSpaceLarge);
    row->addLayout(
        ButtonRow({"cmdHideFrame(0)", "cmdHideFrame(1)", "cmdFullScreen", "Command18(0)", "Command18(1)"}));
    column->addLayout(row);
    auto* progress = new ProgressLine;
    progress->ShowShare(0.35);
    column->addWidget(progress);
    return card;
}

Card* EffectsPanel() {
    auto* card = new Card(QStringLiteral("Image FX"));
    auto* column = new QVBoxLayout;
    column->setSpacing(kSpaceSmall);
    card->SetBody(column);
    column->addLayout(ButtonRow({"cmdSetMain", "cmdSetMain2", "cmdRGBUndo", "cmdCopy"}));
    auto* sliders = new QHBoxLayout;
    for (const char* name : {"R", "G", "B"}) {
        sliders->addWidget(new SectionCaption(QString::fromLatin1(name)));
        auto* slider = new QSlider(Qt::Horizontal);
        slider->setRange(-255, 255);
        slider->setValue(name[0] == 'R' ? 80 : name[0] == 'G' ? 0 : -120);
        sliders->addWidget(slider);
    }
    sliders->addWidget(new IconButton(u"reset-sliders"));
    column->addLayout(sliders);
    return card;
}

Card* SendPanel() {
    auto* card = new Card;
    auto* column = new QVBoxLayout;
    column->setSpacing(kSpaceSmall);
    card->SetBody(column);
    for (const char16_t* icon :
         {u"send-material", u"re-texture", u"batch-send", u"super-batch-send", u"super-batch-panel",
          u"file-extensions", u"pixel-sampler", u"bare-face", u"user-manual"}) {
        auto* button = new IconButton(icon);
        button->setToolTip(
            QStringLiteral("BatchSend: Send all images in directory to SketchUp; Sends SU supported images"));
        column->addWidget(button);
    }
    column->addStretch();
    return card;
}

} // namespace

QWidget* MakePanelPage() {
    auto* page = new Ground;
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(kSpace, kSpace, kSpace, kSpace);
    grid->setSpacing(kSpaceSmall);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(0, 1);
    grid->addWidget(EffectsPanel(), 0, 0, Qt::AlignLeft | Qt::AlignBottom);
    grid->addWidget(RightPanel(), 0, 1);
    grid->addWidget(SendPanel(), 0, 2);
    grid->addWidget(LowerPanel(), 1, 0, 1, 3);
    page->setFixedSize(1024, 660);
    return page;
}

} // namespace mirelle::look

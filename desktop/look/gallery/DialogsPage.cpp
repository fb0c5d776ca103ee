#include <QAction>
#include <QColorDialog>
#include <QFileDialog>
#include <QGridLayout>
#include <QGuiApplication>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QStyleOption>
#include <QToolTip>
#include <QWidget>

#include "desktop/look/gallery/Pages.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Tokens.h"
#include "desktop/look/ToolTips.h"

namespace mirelle::look {

namespace {

// A window of its own, shown inside of the page.
template <typename Window>
Window* Inside(Window* window) {
    window->setWindowFlags(Qt::Widget);
    window->setAutoFillBackground(true);
    window->setPalette(QGuiApplication::palette());
    return window;
}

QMessageBox* Message(QMessageBox::Icon icon, const char* text, QMessageBox::StandardButtons buttons) {
    return Inside(new QMessageBox(icon, QStringLiteral("Mirelle"), QString::fromLatin1(text), buttons));
}

QMenu* Menu() {
    auto* menu = new QMenu;
    menu->addAction(QStringLiteral("Undo\tCtrl+Z"))->setEnabled(false);
    menu->addSeparator();
    menu->addAction(MakeIcon(u"copy-material"), QStringLiteral("Copy\tCtrl+C"));
    QAction* paste = menu->addAction(MakeIcon(u"paste"), QStringLiteral("Paste\tCtrl+V"));
    QAction* keep = menu->addAction(QStringLiteral("Keep"));
    keep->setCheckable(true);
    keep->setChecked(true);
    menu->addMenu(QStringLiteral("More"));
    menu->setActiveAction(paste);
    menu->setWindowFlags(Qt::Widget);
    return menu;
}

class Tip : public QWidget {
public:
    Tip() { setFixedSize(340, 70); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QStyleOption option;
        option.initFrom(this);
        option.palette = QToolTip::palette();
        style()->drawPrimitive(QStyle::PE_PanelTipLabel, &option, &painter, this);
        const QString text =
            QStringLiteral("Change entered material name texture in SketchUp to current selected image; "
                           "Sends SU supported images");
        painter.setPen(option.palette.color(QPalette::ToolTipText));
        painter.drawText(rect().adjusted(kSpace, kSpaceSmall, 0, 0),
                         BrokenIntoLines(text, font(), kTipWidth));
    }
};

} // namespace

QWidget* MakeDialogsPage() {
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->addWidget(Message(QMessageBox::NoIcon, "Make sure the Ruby Console is visible", QMessageBox::Ok), 0,
                    0);
    grid->addWidget(Message(QMessageBox::Question, "Art_0013.jpg is there already. Overwrite it?",
                            QMessageBox::Yes | QMessageBox::No),
                    1, 0);
    grid->addWidget(Message(QMessageBox::Warning, "The picture cannot be read.", QMessageBox::Ok), 2, 0);
    grid->addWidget(Menu(), 0, 1, 2, 1, Qt::AlignTop | Qt::AlignLeft);
    grid->addWidget(new Tip, 2, 1);
    auto* files = Inside(new QFileDialog);
    files->setOption(QFileDialog::DontUseNativeDialog);
    files->setMinimumSize(620, 320);
    grid->addWidget(files, 3, 0, 1, 2);
    auto* colours = Inside(new QColorDialog(QColor(kAccent)));
    colours->setOption(QColorDialog::DontUseNativeDialog);
    grid->addWidget(colours, 0, 2, 4, 1, Qt::AlignTop);
    return page;
}

} // namespace mirelle::look

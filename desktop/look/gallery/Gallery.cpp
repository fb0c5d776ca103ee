// The gallery: shows a page of the look, or saves it as a picture.
//
//     mirelle_gallery [PAGE] [FILE.png]
#include <QApplication>
#include <QPalette>
#include <QPixmap>
#include <QWidget>

#include "desktop/look/gallery/Pages.h"
#include "desktop/look/Tokens.h"

int main(int argc, char** argv) {
    using namespace mirelle::look;
    const QApplication application(argc, argv);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(kCard));
    QApplication::setPalette(palette);
    QWidget* page = MakeIconsPage();
    page->show();
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() > 2) return page->grab().save(arguments[2]) ? 0 : 1;
    return QApplication::exec();
}

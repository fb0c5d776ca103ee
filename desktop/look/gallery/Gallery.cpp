// The gallery: shows the pages of the look, or saves one of them as a picture.
//
//     mirelle_gallery                    a window with a page for each tab
//     mirelle_gallery PAGE FILE.png      saves that page
#include <cstdio>
#include <memory>

#include <QApplication>
#include <QPalette>
#include <QPixmap>
#include <QTabWidget>

#include "desktop/look/gallery/GalleryStyle.h"
#include "desktop/look/gallery/Pages.h"
#include "desktop/look/Look.h"
#include "desktop/look/Tokens.h"

namespace {

using namespace mirelle::look;

struct PageRow {
    const char* name;
    QWidget* (*make)();
};

constexpr PageRow kPages[] = {{"controls", MakeControlsPage},
                              {"icons", MakeIconsPage},
                              {"panels", MakePanelPage},
                              {"dialogs", MakeDialogsPage}};

std::unique_ptr<QWidget> OnCanvas(const PageRow& row) {
    std::unique_ptr<QWidget> page(row.make());
    // Only the page itself shows the canvas; its cards and dialogs keep the application's palette.
    QPalette palette = page->palette();
    palette.setColor(QPalette::Window, QColor(kCanvas));
    page->setPalette(palette);
    page->setAutoFillBackground(true);
    return page;
}

int Save(const QString& name, const QString& file) {
    for (const PageRow& row : kPages) {
        if (name != QLatin1String(row.name)) continue;
        const std::unique_ptr<QWidget> page = OnCanvas(row);
        page->show();
        QApplication::processEvents();
        return page->grab().save(file) ? 0 : 1;
    }
    std::fprintf(stderr, "no such page\n");
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    ApplyLook(application);
    QApplication::setStyle(new GalleryStyle);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 3) return Save(arguments[1], arguments[2]);

    QTabWidget window;
    for (const PageRow& row : kPages)
        window.addTab(OnCanvas(row).release(), QString::fromLatin1(row.name));
    window.show();
    return QApplication::exec();
}

// Makes the PDF of the user manual: mirelle_manual MANUAL.html MANUAL.pdf
//
// A4 pages with a running foot. Pictures are named relative to the HTML file and scaled to the width that
// their tag gives, in points.
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>
#include <QUrl>

#include <cstdio>

namespace {

constexpr int kResolution = 144; // dots an inch: pictures stay sharp, and the file small
constexpr qreal kPointsAnInch = 72;
constexpr QMarginsF kMargins(20, 18, 20, 18); // millimetres
constexpr qreal kFootHeight = 24;             // points, below the text
constexpr int kFootSize = 8;
constexpr int kTextSize = 10;

QString TextOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

class Manual {
public:
    Manual(const QString& html, const QString& title) {
        const QFileInfo file(html);
        document_.setBaseUrl(QUrl::fromLocalFile(file.absolutePath() + "/"));
        document_.setDocumentMargin(0);
        QFont font("DejaVu Sans");
        font.setPixelSize(kTextSize); // a unit of the layout is a point of the page
        document_.setDefaultFont(font);
        document_.setHtml(TextOf(html));
        document_.setMetaInformation(QTextDocument::DocumentTitle, title);
    }

    bool Write(const QString& pdf, const QString& title) {
        QPdfWriter writer(pdf);
        writer.setTitle(title);
        writer.setCreator("Mirelle");
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(kMargins, QPageLayout::Millimeter);
        writer.setResolution(kResolution);
        QPainter painter;
        if (!painter.begin(&writer)) return false;
        // Everything is laid out in points.
        const QSizeF page(writer.width() * kPointsAnInch / kResolution,
                          writer.height() * kPointsAnInch / kResolution);
        painter.setWindow(QRectF(QPointF(), page).toRect());
        document_.setPageSize({page.width(), page.height() - kFootHeight});
        if (document_.pageCount() < 1) return false; // a picture is missing
        for (int number = 0; number < document_.pageCount(); ++number) {
            if (number > 0) writer.newPage();
            PaintPage(painter, number);
            PaintFoot(painter, page, number, title);
        }
        return painter.end();
    }

    int Pages() const { return document_.pageCount(); }

private:
    void PaintPage(QPainter& painter, int number) {
        const QRectF window(0, number * document_.pageSize().height(), document_.pageSize().width(),
                            document_.pageSize().height());
        painter.save();
        painter.translate(0, -window.top());
        // A point less: a picture on top of the next page begins a part of a point ahead of it.
        document_.drawContents(&painter, window.adjusted(0, 0, 0, -1));
        painter.restore();
    }

    void PaintFoot(QPainter& painter, const QSizeF& page, int number, const QString& title) {
        QFont font = document_.defaultFont();
        font.setPixelSize(kFootSize);
        painter.setFont(font);
        painter.setPen(QColor(0x80, 0x80, 0x80));
        const QRectF foot(0, page.height() - kFootHeight, page.width(), kFootHeight);
        painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom, title);
        painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom,
                         QString("%1 / %2").arg(number + 1).arg(document_.pageCount()));
    }

    QTextDocument document_;
};

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: mirelle_manual MANUAL.html MANUAL.pdf\n");
        return 2;
    }
    const QString title = "Mirelle 1.0, user manual";
    Manual manual(QString::fromLocal8Bit(argv[1]), title);
    if (!manual.Write(QString::fromLocal8Bit(argv[2]), title)) {
        std::fprintf(stderr, "mirelle_manual: %s cannot be written\n", argv[2]);
        return 1;
    }
    std::printf("%s: %d pages\n", argv[2], manual.Pages());
    return 0;
}

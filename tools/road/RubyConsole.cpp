// A stand-in for SketchUp's Ruby Console: a small window with a line to type into, and behind it a real Ruby
// interpreter that evaluates each line.
//
//   ruby_console TITLE SOCKET [X Y WIDTH HEIGHT]
//
// The interpreter runs model.rb and answers questions about its model at SOCKET. It ends with the window.
#include <QApplication>
#include <QFontDatabase>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QVBoxLayout>

namespace {

class RubyConsole : public QWidget {
public:
    explicit RubyConsole(const QString& title) {
        setWindowTitle(title);
        const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        shown_.setReadOnly(true);
        shown_.setFocusPolicy(Qt::NoFocus);
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(4, 4, 4, 4);
        column->addWidget(&shown_);
        column->addWidget(&entry_);
        for (QWidget* part : {static_cast<QWidget*>(&shown_), static_cast<QWidget*>(&entry_)})
            part->setFont(font);
        connect(&entry_, &QLineEdit::returnPressed, this, [this] { TakeLine(); });
        connect(&ruby_, &QProcess::readyReadStandardOutput, this, [this] { ShowAnswers(); });
    }

    ~RubyConsole() override {
        ruby_.closeWriteChannel();
        ruby_.waitForFinished();
    }

    bool StartRuby(const QString& socket) {
        ruby_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        ruby_.start("ruby", {MIRELLE_RUBY_MODEL, socket});
        return ruby_.waitForStarted();
    }

private:
    void TakeLine() {
        const QString line = entry_.text();
        entry_.clear();
        shown_.appendPlainText("> " + line);
        ruby_.write(line.toUtf8() + '\n');
    }

    void ShowAnswers() {
        while (ruby_.canReadLine())
            shown_.appendPlainText(QString::fromUtf8(ruby_.readLine()).trimmed());
    }

    QPlainTextEdit shown_;
    QLineEdit entry_;
    QProcess ruby_;
};

} // namespace

int main(int count, char** arguments) {
    QApplication application(count, arguments);
    const QStringList words = QApplication::arguments();
    if (words.size() != 3 && words.size() != 7) return 2;
    RubyConsole console(words[1]);
    if (!console.StartRuby(words[2])) return 1;
    console.resize(360, 240);
    if (words.size() == 7)
        console.setGeometry(words[3].toInt(), words[4].toInt(), words[5].toInt(), words[6].toInt());
    console.show();
    return QApplication::exec();
}

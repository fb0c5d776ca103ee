#include "desktop/system/QtDialogs.h"

#include "desktop/system/FileFilter.h"
#include "desktop/system/PathText.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace mirelle {
namespace {

QString TitleOr(const std::string& title, const char* otherwise) {
    return title.empty() ? QString::fromLatin1(otherwise) : QString::fromStdString(title);
}

constexpr const char* kTitle = "Mirelle";

} // namespace

MessageAnswer QtDialogs::MsgBox(const std::string& text, MessageButtons buttons, const std::string& title) {
    QMessageBox box(parent_);
    box.setWindowTitle(TitleOr(title, kTitle));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(text));
    const bool question = buttons == MessageButtons::YesNo;
    box.setIcon(question ? QMessageBox::Question : QMessageBox::NoIcon);
    box.setStandardButtons(question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    box.setDefaultButton(question ? QMessageBox::No : QMessageBox::Ok);
    const int answer = box.exec();
    if (!question) return MessageAnswer::Ok;
    return answer == QMessageBox::Yes ? MessageAnswer::Yes : MessageAnswer::No;
}

std::string QtDialogs::InputBox(const std::string& prompt, const std::string& title,
                                const std::string& defaultText) {
    QInputDialog dialog(parent_);
    dialog.setWindowTitle(TitleOr(title, kTitle));
    dialog.setLabelText(QString::fromStdString(prompt));
    dialog.setTextValue(QString::fromStdString(defaultText));
    return dialog.exec() == QDialog::Accepted ? dialog.textValue().toStdString() : std::string();
}

std::optional<std::string> QtDialogs::ShowOpen(const OpenRequest& request) {
    QFileDialog dialog(parent_, TitleOr(request.title, kTitle), folder_);
    dialog.setOption(QFileDialog::DontUseNativeDialog); // one look throughout
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(NameFilters(request.filter));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    folder_ = dialog.directory().absolutePath();
    return PathText(dialog.selectedFiles().constFirst());
}

std::optional<Color> QtDialogs::ShowColor(Color current) {
    const Pixel start = PixelOf(current);
    QColorDialog dialog(QColor(start.red, start.green, start.blue), parent_);
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    const QColor chosen = dialog.currentColor();
    return RGB(chosen.red(), chosen.green(), chosen.blue());
}

} // namespace mirelle

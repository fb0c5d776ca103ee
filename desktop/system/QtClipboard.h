// The system's clipboard. A picture on it is fetched and turned into pixels once, and kept until the
// clipboard changes: whoever asks again gets the same shared pixels, also when the program that owned it has
// died meanwhile.
#pragma once

#include "forms/ports/Clipboard.h"

#include <QObject>

#include <optional>

class QClipboard;

namespace mirelle {

class QtClipboard : public QObject, public Clipboard {
    Q_OBJECT

public:
    explicit QtClipboard(QObject* parent = nullptr);

    bool HasBitmap() const override;
    Picture GetData() override;
    void Clear() override;
    // Offers the picture to other programs as image/png, image/bmp and whatever Qt makes of an image.
    void SetData(const Picture& bitmap) override;
    void SetText(const std::string& text) override;

private:
    QClipboard& clipboard_;
    std::optional<Picture> fetched_; // what the clipboard held when it was asked; none since its last change
};

} // namespace mirelle

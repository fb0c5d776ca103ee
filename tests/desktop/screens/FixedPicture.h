// A picture of the window as it is meant to look, kept at a quarter of its size: fonts of other systems move
// letters by a pixel or two, which a quarter hardly sees, while a panel at another place or in another colour
// stands out.
#pragma once

#include <QImage>

#include <string>

class QWidget;

namespace mirelle::test {

class FixedPicture {
public:
    // fixed/NAME.png beside this file. MIRELLE_FIX_PICTURES in the environment writes it anew instead.
    explicit FixedPicture(const char* name);

    // Fixed pictures are of windows on a screen of 1024 by 700 at scale 1.
    bool IsFor(const QWidget& window) const;
    // What is other than in the fixed picture, in words; empty where the two look alike.
    std::string FaultsIn(const QImage& shot) const;

private:
    QString file_;
};

} // namespace mirelle::test

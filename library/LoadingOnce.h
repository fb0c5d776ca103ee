// One file for many holders: decoded when the first of them takes it, and never twice. The holders share its
// pixels.
#pragma once

#include "forms/Picture.h"
#include "forms/ports/Pictures.h"
#include "forms/RunTimeError.h"

#include <string>
#include <utility>

namespace mirelle {

class LoadingOnce {
public:
    LoadingOnce(PictureLoader& loader, std::string path) : loader_(loader), path_(std::move(path)) {}

    // Assigns the file's picture to the holder. A file that can't be loaded changes nothing.
    template <class Holder>
    void Into(Holder& holder) {
        LoadAtFirstUse();
        if (loaded_) ResumeNext([&] { holder.Picture = picture_; });
    }

private:
    void LoadAtFirstUse() {
        if (std::exchange(tried_, true)) return;
        loaded_ = ResumeNext([this] { picture_ = loader_.LoadPicture(path_); });
    }

    PictureLoader& loader_;
    std::string path_;
    Picture picture_;
    bool tried_ = false;
    bool loaded_ = false;
};

} // namespace mirelle

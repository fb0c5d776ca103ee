// What the pictures of the screen show: each scene is arranged as a user would come to it.
#pragma once

#include "tests/desktop/screens/Stage.h"

#include <span>

namespace mirelle::test {

struct Scene {
    const char* name;
    void (*arrange)(Stage& stage);
    // The window that the picture is taken of; null for the main window.
    QWidget* (*window)(Stage& stage) = nullptr;
    // Texts that are longer than any room are part of the scene: a list or a field cuts them.
    bool longTexts = false;
};

std::span<const Scene> Scenes();

} // namespace mirelle::test

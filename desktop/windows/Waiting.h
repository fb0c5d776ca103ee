// Waiting for another program, without keeping it waiting.
#pragma once

#include <chrono>

namespace mirelle::windows {

// Waits, at most so long, and answers what other programs ask the windows of this thread meanwhile: one that
// has what is waited for may itself be waiting for such an answer. What has been posted to those windows
// stays in the queue, so that no handler runs. Returns after each answer; to be called in a loop that looks
// for what it waits for.
void WaitAnswering(std::chrono::milliseconds longest);

} // namespace mirelle::windows

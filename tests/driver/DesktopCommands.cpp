// Commands for the stand-ins: clipboard, dialogs, console window, viewer.
#include "tests/driver/Commands.h"
#include "tests/driver/Dump.h"
#include "tests/driver/Errors.h"
#include "tests/driver/Json.h"
#include "tests/driver/Values.h"

#include <array>
#include <utility>

namespace mirelle::driver {
namespace {

using test::SentItem;
using test::ShownDialog;

std::string ClipboardKind(const test::ScriptedClipboard& clipboard) {
    if (clipboard.HasBitmap()) return JsonStrings({"bitmap"});
    if (clipboard.text) return JsonStrings({"text", *clipboard.text});
    return JsonStrings({"none"});
}

std::string Clipboard(Session& session, Words words) {
    auto& clipboard = session.desktop.clipboard;
    const std::string& what = words[0];
    const std::size_t more = words.size() - 1;
    if (what == "kind" && more == 0) return ClipboardKind(clipboard);
    if (what == "save" && more == 1) return DumpPicture(clipboard.bitmap, words[1]);
    if (what == "load" && more == 1) {
        clipboard.SetData(session.ReadPicture(words[1]));
    } else if (what == "text" && more == 1) {
        clipboard.SetText(words[1]);
    } else if (what == "clear" && more == 0) {
        clipboard.Clear();
    } else {
        throw UsageError("clipboard load FILE|text TEXT|clear|save FILE|kind");
    }
    return {};
}

MessageAnswer MessageAnswerIn(const std::string& word) {
    if (word == "yes") return MessageAnswer::Yes;
    if (word == "no") return MessageAnswer::No;
    if (word == "ok") return MessageAnswer::Ok;
    throw UsageError("answer msg yes|no|ok");
}

template <class T>
std::optional<T> AnswerIn(const std::string& word) {
    if (word == "cancel") return std::nullopt;
    return Read<T>(word);
}

std::string Answer(Session& session, Words words) {
    auto& dialogs = session.desktop.dialogs;
    if (words[0] == "open") {
        dialogs.openAnswers.push_back(AnswerIn<std::string>(words[1]));
    } else if (words[0] == "color") {
        dialogs.colorAnswers.push_back(AnswerIn<Color>(words[1]));
    } else if (words[0] == "input") {
        dialogs.inputAnswers.push_back(AnswerIn<std::string>(words[1]));
    } else if (words[0] == "msg") {
        dialogs.messageAnswers.push_back(MessageAnswerIn(words[1]));
    } else {
        throw UsageError("answer open|color|input|msg ANSWER");
    }
    return {};
}

// Everything that a stand-in has recorded since the last look, as a list of what `describe` makes of each.
template <class Item, class Describe>
std::string TakeAll(std::vector<Item>& recorded, Describe describe) {
    std::vector<std::string> values;
    for (const Item& item : std::exchange(recorded, {}))
        values.push_back(describe(item));
    return JsonList(values);
}

std::string Messages(Session& session, Words) {
    return TakeAll(session.desktop.dialogs.messages, [](const test::ShownMessage& message) {
        const bool asks = message.buttons == MessageButtons::YesNo;
        return JsonObject({{"text", JsonString(message.text)},
                           {"title", JsonString(message.title)},
                           {"buttons", JsonString(asks ? "yesno" : "ok")}});
    });
}

std::string DialogJson(const ShownDialog& dialog) {
    switch (dialog.kind) {
    case ShownDialog::Kind::Open:
        return JsonObject({{"kind", JsonString("open")},
                           {"title", JsonString(dialog.open.title)},
                           {"filter", JsonString(dialog.open.filter)},
                           {"flags", JsonNumber(dialog.open.flags)}});
    case ShownDialog::Kind::Input:
        return JsonObject({{"kind", JsonString("input")},
                           {"prompt", JsonString(dialog.prompt)},
                           {"title", JsonString(dialog.title)},
                           {"default", JsonString(dialog.defaultText)}});
    case ShownDialog::Kind::Color:
        break;
    }
    return JsonObject({{"kind", JsonString("color")}});
}

std::string Dialogs(Session& session, Words) {
    return TakeAll(session.desktop.dialogs.dialogs, DialogJson);
}

std::string Console(Session& session, Words words) {
    if (words[0] != "present" && words[0] != "absent") throw UsageError("console present|absent");
    session.desktop.console.present = words[0] == "present";
    return {};
}

std::string SentJson(const SentItem& item) {
    const bool isPause = item.verb == "Pause";
    std::vector<std::string> values = {JsonString(item.verb),
                                       isPause ? JsonNumber(item.seconds) : JsonString(item.text)};
    if (item.failed) values.push_back(JsonString("failed"));
    return JsonList(values);
}

std::string Sent(Session& session, Words) {
    return TakeAll(session.desktop.console.sent, SentJson);
}

std::string Opened(Session& session, Words) {
    return TakeAll(session.desktop.viewer.opened, [](const test::OpenedDocument& document) {
        return JsonList(
            {JsonString(document.target), JsonString(document.workingFolder), JsonNumber(document.showMode)});
    });
}

constexpr std::array kCommands = {
    Command{"clipboard", "load FILE|text TEXT|clear|save FILE|kind", 1, 2, Clipboard},
    Command{"answer", "open PATH|color N|input TEXT|msg yes|no|ok, or cancel", 2, 2, Answer},
    Command{"messages", "", 0, 0, Messages},
    Command{"dialogs", "", 0, 0, Dialogs},
    Command{"console", "present|absent", 1, 1, Console},
    Command{"sent", "", 0, 0, Sent},
    Command{"opened", "", 0, 0, Opened},
};

} // namespace

std::span<const Command> DesktopCommands() {
    return kCommands;
}

} // namespace mirelle::driver

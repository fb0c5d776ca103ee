// The sends of many images: Command10 sends every file of the current list, Command13 every row of the
// SuperBatch list.
#pragma once

#include <string>

namespace mirelle {

class FrmPicX;
class RubyConsoleLink;

class BatchSend {
public:
    explicit BatchSend(FrmPicX& form);

private:
    void SendFolder();
    void SendList();
    void SendFile(RubyConsoleLink& link, int row);
    void SendRow(RubyConsoleLink& link, const std::string& row);
    void TellEmpty();

    FrmPicX& form_;
};

} // namespace mirelle

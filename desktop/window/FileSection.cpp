#include "desktop/window/FileSection.h"

#include "desktop/binding/RowsView.h"
#include "desktop/binding/Updater.h"
#include "desktop/canvas/FittedView.h"
#include "desktop/look/ElidedLabel.h"
#include "desktop/look/IconButton.h"
#include "desktop/look/IconTable.h"
#include "desktop/look/Tokens.h"
#include "desktop/window/FolderRows.h"

#include <QComboBox>
#include <QLabel>
#include <QToolButton>

namespace mirelle {
namespace {

constexpr int kPreviewHeight = 56;
constexpr int kPreviewMost = 120;
constexpr int kKindWidth = 84;
constexpr int kListHeight = 2 * look::kRowHeight + 4; // at least: two rows in their frame

// What else stands in the row stays at its place when the widget is hidden.
void KeepPlace(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

QComboBox* MakeDrives(Binder& binder, QWidget* parent) {
    auto* drives = new QComboBox(parent);
    drives->setFixedHeight(look::kControlHeight);
    drives->setMinimumContentsLength(1);
    drives->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    drives->setFocusPolicy(Qt::TabFocus);
    KeepPlace(*drives);
    binder.Drives(binder.TheForm().Drive5, *drives);
    return drives;
}

// The button shows what it does next.
void FollowWindowState(FrmPicX& form, look::IconButton* button) {
    ShowWhenChanged(form, button, [&form, button] {
        const std::string_view name =
            form.WindowState == kWindowMaximized ? look::kNormalSizeIcon : look::IconOf("cmdFullScreen");
        button->SetDrawing(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
    });
}

} // namespace

FileSection::FileSection(Binder& binder, QWidget* parent) : QWidget(parent) {
    Parts parts(binder, *this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(look::kSpaceSmall);
    column->addLayout(DriveRow(parts));
    column->addLayout(Lists(parts), 1);
    column->addLayout(KindRow(parts));
}

QLayout* FileSection::DriveRow(Parts& parts) {
    FrmPicX& form = parts.Form();
    QComboBox* drives = MakeDrives(parts.TheBinder(), this);
    auto* row = Row({drives, parts.Button(form.cmdBackDir), parts.Button(form.cmdRefreshFile)});
    row->setStretch(0, 1);
    return row;
}

QLayout* FileSection::Lists(Parts& parts) {
    FrmPicX& form = parts.Form();
    auto* folders = new RowsView(this);
    folders->setMinimumHeight(kListHeight);
    folders->setItemDelegate(new FolderRows(folders));
    parts.TheBinder().Folders(form.Dir5, *folders);
    auto* files = new RowsView(this);
    files->setMinimumHeight(kListHeight);
    parts.TheBinder().Files(form.File5, *files);
    auto* left = Column();
    left->addWidget(folders, 1);
    left->addWidget(PreviewRoom(parts));
    auto* lists = Row();
    lists->addLayout(left, 4);
    lists->addWidget(files, 5);
    look::ElidedLabel* path = parts.Note(form.lblPubPath);
    auto* whole = Column();
    whole->addLayout(lists, 1);
    whole->addWidget(path);
    return whole;
}

// Without a picture the folders take its room.
QWidget* FileSection::PreviewRoom(Parts& parts) {
    ImageControl& image = parts.Form().Imagex;
    auto* room = new QWidget(this);
    Parts inside(parts.TheBinder(), *room);
    FittedView* preview = inside.Preview(image, {kPreviewHeight, kPreviewHeight});
    preview->setMaximumHeight(kPreviewMost); // and less where the lists need the room
    auto* whole = new QVBoxLayout(room);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(preview);
    ShowWhenChanged(image, room, [&image, room] { room->setVisible(!image.Picture().IsEmpty()); });
    return room;
}

QLayout* FileSection::KindRow(Parts& parts) {
    FrmPicX& form = parts.Form();
    QComboBox* kind = parts.EditableChoice(form.Combo5);
    kind->setFixedWidth(kKindWidth);
    look::ElidedLabel* count = parts.Note(form.Label8(46));
    look::IconButton* fileTypes = parts.Button(form.Command2);
    look::IconButton* fullScreen = parts.Button(form.cmdFullScreen);
    FollowWindowState(form, fullScreen);
    KeepPlace(*kind);
    KeepPlace(*count);
    auto* row = Row({kind, count, fileTypes, fullScreen});
    row->setStretch(1, 1);
    return row;
}

} // namespace mirelle

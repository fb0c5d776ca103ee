#include "desktop/window/SendPanel.h"

#include "desktop/look/Tokens.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QToolButton>

namespace mirelle {

SendPanel::SendPanel(Binder& binder, QWidget* parent) : Panel(parent) {
    Parts parts(binder, *this);
    FrmPicX& form = binder.TheForm();
    Contents().setSpacing(look::kSpaceSmall);
    Contents().setAlignment(Qt::AlignHCenter);

    // The two sends stand at one place: one of them is shown.
    for (CommandButton* button : {&form.Command6, &form.Command7, &form.cmdReMat})
        Contents().addWidget(parts.Button(*button), 0, Qt::AlignHCenter);
    AddDivider();
    for (CommandButton* button : {&form.Command14, &form.Command10, &form.Command13})
        Contents().addWidget(parts.Button(*button), 0, Qt::AlignHCenter);
    AddDivider();
    Contents().addWidget(parts.Check(form.ckSize));
    Contents().addWidget(parts.Field(form.TextMatSize));
    constexpr std::array kUnits = {"in", "ft", "m"};
    form.optUnits.ForEach([&](OptionButton& unit) {
        Contents().addWidget(
            parts.Option(unit, QString::fromLatin1(kUnits[static_cast<std::size_t>(unit.Index())])));
    });
    Contents().addStretch(1);
    QWidget* toFaces = parts.Button(form.cmdMat2Corvane);
    toFaces->setAccessibleName(tr("Send the material name")); // its tip comes with the mouse
    Contents().addWidget(toFaces, 0, Qt::AlignHCenter);
    for (CommandButton* button : {&form.Command18(0), &form.Command18(1), &form.cmdGetCorvane(0)})
        Contents().addWidget(parts.Button(*button), 0, Qt::AlignHCenter);
    Bind(binder, form.Frame6);
}

void SendPanel::AddDivider() {
    Contents().addSpacing(look::kSpaceSmall);
    Contents().addWidget(Divider(Qt::Horizontal, *this));
    Contents().addSpacing(look::kSpaceSmall);
}

} // namespace mirelle

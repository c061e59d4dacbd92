#include "mainwindow/frmAbout.h"

#include "foundation/Identity.h"
#include "platform/controls/Icons.h"

#include <QVersionNumber>

using namespace Qt::Literals::StringLiterals;

namespace {

void StartSysInfo()
{
    // Such a program is found through a registry, which this system has not.
    ShowMessage(u"System Information Is Unavailable At This Time"_s, AppTitle, Icon::None);
}

QString VersionText()
{
    // Its systems are part of the version's name, whatever this one is.
    const auto version = QVersionNumber::fromString(QLatin1String(TALLYMERE_VERSION));
    return u"Version %1.%2.%3 for 32-bit systems (Windows 95, NT or 98)"_s.arg(version.majorVersion())
        .arg(version.minorVersion())
        .arg(version.microVersion());
}

} // namespace

frmAbout::frmAbout()
{
    OnClick(ui.cmdSysInfo, StartSysInfo);
    UnloadOn(ui.cmdOK);
}

void frmAbout::Load()
{
    ShowIcon();
    ui.lblTitle->setText(u"The "_s + AppTitle);
    QFont heading = ui.lblTitle->font();
    heading.setBold(true);
    heading.setPointSizeF(heading.pointSizeF() * 1.4);
    ui.lblTitle->setFont(heading);
    ui.lblVersion->setText(VersionText());
}

void frmAbout::changeEvent(QEvent *event)
{
    Window::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ShowIcon();
}

void frmAbout::ShowIcon()
{
    constexpr QSize size(64, 64);
    ui.picIcon->setPixmap(ThemedIcon(ProgramName.toLower()).pixmap(size, devicePixelRatioF()));
}

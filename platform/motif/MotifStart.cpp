// Opening the display: locale, resources, fonts.

#include "motif/AppDefaults.h"
#include "motif/DisplayErrors.h"
#include "motif/MotifQuirks.h"
#include "motif/MotifView.h"
#include "toolkit/MotifToolkit.h"
#include "values/ZOLGYRError.h"

#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <langinfo.h>

#include <clocale>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace trellis {

namespace {

constexpr int noDisplay = 60150;
constexpr const char* applicationName = "trellis";
constexpr const char* applicationClass = "Trellis";

// Never destroyed by the end of the process: what it uses may be gone by then.
std::unique_ptr<MotifView>& theView = *new std::unique_ptr<MotifView>;

// Texts are UTF-8 in any locale; numbers keep the form of the C locale, since files are written in it.
void ChooseLocale() {
    setlocale(LC_CTYPE, "");
    if (std::string_view(nl_langinfo(CODESET)) != "UTF-8")
        setlocale(LC_CTYPE, "C.UTF-8");
    if (!XSupportsLocale())
        setlocale(LC_CTYPE, "C.UTF-8");
    XSetLocaleModifiers("");
}

// A resource of the application itself, such as trellis.fontSize.
std::string ResourceOr(XrmDatabase database, const std::string& name, const std::string& otherwise) {
    char* type = nullptr;
    XrmValue value = {};
    const std::string own = std::string(applicationName) + "." + name;
    const std::string general = std::string(applicationClass) + "." + name;
    if (!XrmGetResource(database, own.c_str(), general.c_str(), &type, &value) || !value.addr)
        return otherwise;
    return value.addr;
}

double NumberOr(const std::string& text, double otherwise) {
    char* end = nullptr;
    const double number = std::strtod(text.c_str(), &end);
    return end == text.c_str() ? otherwise : number;
}

// What the user and the site say wins over the built-in file. All fonts and the distances that native widgets
// keep follow from one size.
Theme ChooseTheme(Display* display) {
    XrmDatabase database = XtScreenDatabase(DefaultScreenOfDisplay(display));
    XrmDatabase builtIn = XrmGetStringDatabase(appDefaults);
    XrmCombineDatabase(builtIn, &database, False);

    constexpr double plainDpi = 96;
    char* type = nullptr;
    XrmValue dpi = {};
    const bool hasDpi = XrmGetResource(database, "Xft.dpi", "Xft.Dpi", &type, &dpi) && dpi.addr;
    const double scale = (hasDpi ? NumberOr(dpi.addr, plainDpi) : plainDpi) / plainDpi;
    const Theme theme(ResourceOr(database, "fontFamily", Theme::DefaultFamily),
                      NumberOr(ResourceOr(database, "fontSize", ""), Theme::DefaultPoints), scale);

    const auto put = [&database](const char* name, const std::string& value) {
        XrmPutStringResource(&database, name, value.c_str());
    };
    put("Xft.dpi", std::to_string(static_cast<int>(plainDpi * theme.Scale())));
    put("*textFont.fontName", theme.FontFamily());
    put("*textFont.fontSize", std::to_string(static_cast<int>(theme.FontPoints())));
    put("*indicatorSize", std::to_string(theme.Pixels(Theme::Indicator)));
    put("*XmScrollBar.width", std::to_string(theme.Pixels(Theme::ScrollBar)));
    put("*XmScrollBar.height", std::to_string(theme.Pixels(Theme::ScrollBar)));
    return theme;
}

// A title of a menu that is open, and an item that leads to a further menu, take the colour of what is armed from
// here; there is no resource for it.
void ChooseArmedColour() {
    static XmColorProc computed = nullptr;
    if (computed)
        return; // a second view: it would call itself
    computed =
        XmSetColorCalculation([](XColor* ground, XColor* text, XColor* armed, XColor* upper, XColor* lower) {
            const auto part = [](double value) { return static_cast<unsigned short>(value * 65535); };
            computed(ground, text, armed, upper, lower);
            armed->red = part(Theme::Selection.Red());
            armed->green = part(Theme::Selection.Green());
            armed->blue = part(Theme::Selection.Blue());
        });
}

std::string WantedDisplay(int argc, char** argv) {
    for (int i = 1; i + 1 < argc; ++i)
        if (std::string_view(argv[i]) == "-display")
            return argv[i + 1];
    const char* variable = std::getenv("DISPLAY");
    return variable ? variable : "";
}

// A press that is let go within that time is a click, and one that lasts longer is held: a held button closes the menu
// that it has opened. The native toolkit's own 200 milliseconds are too short for calm hands and busy machines; what a
// user has set stays.
void AllowSlowClicks(Display* display) {
    constexpr int nativeMilliseconds = 200;
    constexpr int milliseconds = 400;
    if (XtGetMultiClickTime(display) == nativeMilliseconds)
        XtSetMultiClickTime(display, milliseconds);
}

} // namespace

MotifView* MotifView::Start(int& argc, char** argv, ZOLGYRError& error) {
    static XrmOptionDescRec options[] = {
        {MotifQuirks::Name("-fontSize"), MotifQuirks::Name(".fontSize"), XrmoptionSepArg, nullptr},
        {MotifQuirks::Name("-fontFamily"), MotifQuirks::Name(".fontFamily"), XrmoptionSepArg, nullptr}};
    const std::string wanted = WantedDisplay(argc, argv);
    ChooseLocale();
    XtToolkitInitialize();
    XtAppContext context = XtCreateApplicationContext();
    Display* display = XtOpenDisplay(context, nullptr, applicationName, applicationClass, options,
                                     XtNumber(options), &argc, argv);
    if (!display) {
        XtDestroyApplicationContext(context);
        error.Set(noDisplay, 0);
        if (!wanted.empty())
            error.Add(wanted);
        return nullptr;
    }
    DisplayErrors::Watch(display);
    AllowSlowClicks(display);
    const Theme theme = ChooseTheme(display);
    ChooseArmedColour();
    Widget application =
        XtVaAppCreateShell(applicationName, applicationClass, applicationShellWidgetClass, display,
                           XtNmappedWhenManaged, False, XtNwidth, 1, XtNheight, 1, nullptr);
    XtRealizeWidget(application);
    theView = std::make_unique<MotifView>(context, application, theme);
    ToolkitView::Choose(theView.get());
    return theView.get();
}

bool MotifToolkit::Start(int& argc, char** argv, ZOLGYRError& error) {
    return MotifView::Start(argc, argv, error);
}

void MotifToolkit::WhenDisplayIsLost(std::function<int()> action) {
    DisplayErrors::SetLostAction(std::move(action));
}

void MotifToolkit::Run() {
    if (theView)
        theView->Run();
}

void MotifToolkit::Quit() {
    if (theView)
        theView->Quit();
}

void MotifToolkit::Stop() {
    theView.reset();
}

} // namespace trellis

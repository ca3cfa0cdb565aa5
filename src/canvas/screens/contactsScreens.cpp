#include "canvas/screens/screenBuilder.h"
#include "canvas/screens/screenLists.h"

namespace zdt {

namespace {

constexpr Ink background{"commonSetting/dial/background color", screenColour::field};
constexpr Ink firstText{"contacts/contact list/first level icon text", screenColour::ink};
constexpr Ink accent{"contacts/dial/highlight color", screenColour::accent};
constexpr Ink secondText{"commonSetting/contact details/secondary icon text", screenColour::inkSoft};
constexpr Ink separator{"contacts/dial/separator color", screenColour::line};

Screen contactListScreen() {
    ScreenBuilder screen("contacts", "contact list");
    screen.fill({0, 0, phoneWidth, phoneHeight}, background);
    screen.statusBar(firstText);
    screen.titleBar({"Contacts", "联系人"}, firstText, {sign::add, sign::moreVert});
    screen.portrait("person1", {120, 400}, 120, 0);
    screen.lines("row1", {216, 400, 640}, {"Mei Lin", "林梅"}, firstText, {"Hangzhou", "杭州"}, secondText);
    screen.divider(500, separator, 216);
    screen.bottomBar({{sign::dialpad, {"Dialler", "拨号"}},
                      {sign::personOutline, {"Contacts", "联系人"}},
                      {sign::starBorder, {"Favourites", "收藏"}}},
                     1, background, accent, secondText);
    screen.homeLine(firstText.faded(160));
    return screen.take();
}

} // namespace

std::vector<Screen> contactsScreens() {
    return {contactListScreen()};
}

} // namespace zdt

#include "lockscreen/layoutDefaults.h"

#include <memory>
#include <string>
#include <utility>

namespace zdt::layoutDefaults {

namespace {

constexpr Place origin{"0", "0", "0", "0"};

void add(AmazingChild& parent, AmazingChild child) {
    parent.addChild(std::make_unique<AmazingChild>(std::move(child)));
}

AmazingChild makeFace(const char* tag, std::string_view picture) {
    AmazingChild face(tag);
    add(face, AmazingChild("image", {{"src", std::string(picture)}}));
    return face;
}

} // namespace

void setPlace(AmazingChild& element, const Place& place) {
    element.setAttribute("x", std::string(place.x));
    element.setAttribute("y", std::string(place.y));
    element.setAttribute("w", std::string(place.w));
    element.setAttribute("h", std::string(place.h));
}

AmazingChild placed(AmazingChild element, const Place& place) {
    setPlace(element, place);
    return element;
}

AmazingChild makeText(const Text& row) {
    AmazingChild text("text", {{"src", std::string(row.src)},
                               {"align", std::string(row.align)},
                               {"size", std::string(row.size)},
                               {"color", std::string(row.colour)}});
    if (!row.visible.empty())
        text.setAttribute("visible", std::string(row.visible));
    if (!row.ellipsize.empty())
        text.setAttribute("ellipsize", std::string(row.ellipsize));
    return placed(std::move(text), {row.x, row.y, row.w, row.h});
}

AmazingChild makeImage(const Picture& picture) {
    return placed(AmazingChild("image", {{"src", std::string(picture.src)}}), picture.place);
}

AmazingChild makeMusicButton(bool shows) {
    AmazingChild command("command", {{"target", std::string(musicControlName)}, {"visible", shows ? "true" : "false"}});
    AmazingChild trigger("trigger",
                         {{"name", shows ? "music_show_trigger" : "music_hide_trigger"}, {"action", "double"}});
    AmazingChild triggers("triggers");
    AmazingChild button("button", {{"name", std::string(shows ? musicShowName : musicHideName)}});
    add(trigger, std::move(command));
    add(triggers, std::move(trigger));
    add(button, std::move(triggers));
    return placed(std::move(button), shows ? musicShowButton : musicHideButton);
}

AmazingChild makeMusicControl() {
    AmazingChild control("MusicControl", {{"name", std::string(musicControlName)}, {"visibility", "false"}});
    AmazingChild picture = makeImage(musicPicture);
    picture.setAttribute("visible", std::string(musicVisible));
    add(control, std::move(picture));
    for (const MusicButton& row : musicButtons) {
        AmazingChild button = placed(AmazingChild("button", {{"name", std::string(row.name)}}), row.place);
        add(button, makeFace("NormalState", row.normal));
        add(button, makeFace("PressedState", row.pressed));
        add(control, std::move(button));
    }
    return control;
}

AmazingChild makeUnlocker(const std::string& name) {
    AmazingChild end = placed(AmazingChild("EndPoint"), origin);
    add(end, AmazingChild("Path", {{"x", "0"}, {"y", "0"}}));
    add(end, AmazingChild("Intent", {{"type", "unlock"}}));
    AmazingChild unlocker("unlocker", {{"name", name}, {"visible", "true"}});
    add(unlocker, placed(AmazingChild("StartPoint"), origin));
    add(unlocker, std::move(end));
    return unlocker;
}

AmazingChild makeSmartIcon() {
    return AmazingChild(std::string(smartIconTag),
                        {{"y", std::string(smartIconY)}, {"color", std::string(smartIconColour)}});
}

} // namespace zdt::layoutDefaults

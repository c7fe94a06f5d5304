#include "platform/desktop/screen_profile.h"

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace platform {

namespace {

/** In units of four bytes, as the window system counts: 16 MiB. */
constexpr uint32_t mostWords = 4 * 1024 * 1024;

template<typename T> using Reply = std::unique_ptr<T, decltype(&std::free)>;

QByteArray property(xcb_connection_t *display, const QByteArray &name)
{
    const auto named = xcb_intern_atom(display, 1, uint16_t(name.size()), name.constData());
    const Reply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(display, named, nullptr), &std::free);
    const xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(display));
    if (!atom || atom->atom == XCB_ATOM_NONE || screens.rem == 0)
        return {};
    const auto asked =
        xcb_get_property(display, 0, screens.data->root, atom->atom, XCB_GET_PROPERTY_TYPE_ANY, 0, mostWords);
    const Reply<xcb_get_property_reply_t> value(xcb_get_property_reply(display, asked, nullptr), &std::free);
    if (!value || value->format != 8)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(value.get())), xcb_get_property_value_length(value.get())};
}

} // namespace

QByteArray profileOfX11Screen(int number)
{
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> display(xcb_connect(nullptr, nullptr),
                                                                               &xcb_disconnect);
    if (number < 0 || xcb_connection_has_error(display.get()))
        return {};
    const QByteArray name = QByteArrayLiteral("_ICC_PROFILE");
    return property(display.get(), number == 0 ? name : name + '_' + QByteArray::number(number));
}

} // namespace platform

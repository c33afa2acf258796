#include "platform/Fonts.h"

#include <clocale>
#include <thread>

#include <fontconfig/fontconfig.h>

namespace {

std::jthread reader;

} // namespace

void ReadFontsAhead()
{
    std::setlocale(LC_ALL, ""); // now, and not by the application while numbers are read on the thread
    reader = std::jthread([] { FcInit(); });
}

void AwaitFonts()
{
    if (reader.joinable())
        reader.join();
}

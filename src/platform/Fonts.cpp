#include "platform/Fonts.h"

#include <thread>

#include <fontconfig/fontconfig.h>

namespace {

std::jthread reader;

} // namespace

void ReadFontsAhead()
{
    reader = std::jthread([] { FcInit(); });
}

void AwaitFonts()
{
    if (reader.joinable())
        reader.join();
}

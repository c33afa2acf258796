#include "platform/Fonts.h"

#include <thread>

#include <fontconfig/fontconfig.h>
#include <locale.h>

namespace {

std::jthread reader;

} // namespace

void ReadFontsAhead()
{
    reader = std::jthread([] {
        // The application sets the keeper's locale meanwhile, in which a number may have another decimal sign.
        const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
        uselocale(plain);
        FcInit();
        uselocale(LC_GLOBAL_LOCALE);
        freelocale(plain);
    });
}

void AwaitFonts()
{
    if (reader.joinable())
        reader.join();
}

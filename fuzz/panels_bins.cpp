#include "fuzz/readers.h"

/// The two files stand in the bytes one behind the other, with an escape character in between.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text = Tamrivo::Fuzz::Text(data, size);
    const std::size_t end = std::min(text.find('\x1B'), text.size());
    const Tamrivo::PanelFile files[] = {
        Tamrivo::PanelFileOf("panels", text.substr(0, end)),
        Tamrivo::PanelFileOf("bins", end < text.size() ? text.substr(end + 1) : ""),
    };
    Tamrivo::Fuzz::ReadAll(files, Tamrivo::PanelFormat::PanelsBins);
    return 0;
}

#include "fuzz/readers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Tamrivo::PanelFile file = Tamrivo::PanelFileOf("file", Tamrivo::Fuzz::Text(data, size));
    Tamrivo::Fuzz::ReadAll({&file, 1}, Tamrivo::PanelFormat::OsirisKit);
    return 0;
}

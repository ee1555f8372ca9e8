#pragma once
#include "support/bmp_file.h"
#include "support/temp_file.h"

// A .bmp file of one colour (0xRRGGBB), or of the rows given from the top down.
class SmallPictureCL : public TempFile
{
public:
    SmallPictureCL(std::uint32_t colour, int width, int height)
        : SmallPictureCL(std::vector<std::vector<std::uint32_t>>(static_cast<std::size_t>(height),
            std::vector<std::uint32_t>(static_cast<std::size_t>(width), colour)))
    {
    }
    explicit SmallPictureCL(const std::vector<std::vector<std::uint32_t>>& rows)
        : TempFile(bytesOf(rows), ".bmp")
    {
    }

private:
    static std::string bytesOf(const std::vector<std::vector<std::uint32_t>>& rows)
    {
        BmpFile file;
        file.width = static_cast<std::int32_t>(rows[0].size());
        file.height = static_cast<std::int32_t>(rows.size());
        for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
            file.addRow(*row);
        }
        const std::vector<unsigned char> bytes = file.bytes();
        return { bytes.begin(), bytes.end() };
    }
};

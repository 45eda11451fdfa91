#include <wx/image.h>
#include <wx/imagpng.h>
#include <wx/mstream.h>

#include <cstdint>

#include "RulesWindow.h"
#include "desktop/PngFile.h"

namespace zy::test {
namespace {

/// A picture that goes to a PNG file and is read back by somebody else's reader, which this system's toolkit
/// has.
class PngFile : public RulesWindow {
  protected:
    static wxImage Read(const std::string& file) {
        wxMemoryInputStream bytes(file.data(), file.size());
        wxImage picture;
        wxPNGHandler reader;
        EXPECT_TRUE(reader.LoadFile(&picture, bytes, true));
        return picture;
    }
    /// With colours that differ from point to point.
    static wxImage Colourful(int width, int height) {
        wxImage picture(width, height);
        std::uint32_t colour = 1;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                colour = colour * 1664525 + 1013904223;
                picture.SetRGB(x, y, static_cast<unsigned char>(colour >> 24),
                               static_cast<unsigned char>(colour >> 16),
                               static_cast<unsigned char>(colour >> 8));
            }
        }
        return picture;
    }
    static std::string PointsOf(const wxImage& picture) {
        const auto count =
            static_cast<std::size_t>(picture.GetWidth()) * static_cast<std::size_t>(picture.GetHeight());
        return {picture.GetData(), picture.GetData() + 3 * count};
    }
};

TEST_F(PngFile, IsReadBackPointByPoint) {
    Play([] {
        for (const wxSize size : {wxSize(1, 1), wxSize(7, 3), wxSize(640, 480)}) {
            const wxImage picture = Colourful(size.x, size.y);
            const wxImage read = Read(PngFileOf(picture, 144));
            EXPECT_EQ(read.GetSize(), size);
            EXPECT_EQ(PointsOf(read), PointsOf(picture));
        }
    });
}

TEST_F(PngFile, SaysHowManyPointsAnInchHas) {
    Play([] {
        const wxImage read = Read(PngFileOf(Colourful(2, 2), 144));
        EXPECT_EQ(read.GetOptionInt(wxIMAGE_OPTION_RESOLUTIONUNIT), wxIMAGE_RESOLUTION_CM);
        EXPECT_EQ(read.GetOptionInt(wxIMAGE_OPTION_RESOLUTIONX),
                  56); // of 56.7 a centimetre: the reader cuts it off
    });
}

} // namespace
} // namespace zy::test

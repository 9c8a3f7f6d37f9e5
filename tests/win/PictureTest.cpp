#include "win/Picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "res/Artwork.h"

namespace {

// A square of pixels that pictures are drawn on.
class Canvas {
  public:
    static constexpr int kSide = 320;

    explicit Canvas(COLORREF ground) : dc_(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info = {{sizeof(BITMAPINFOHEADER), kSide, -kSide, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
        void* bits = nullptr;
        bitmap_ = win::UniqueBitmap(CreateDIBSection(dc_.Get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        pixels_ = static_cast<const DWORD*>(bits);
        SelectObject(dc_.Get(), bitmap_.Get());
        const win::UniqueBrush brush(CreateSolidBrush(ground));
        const RECT all = {0, 0, kSide, kSide};
        FillRect(dc_.Get(), &all, brush.Get());
    }

    HDC Dc() const { return dc_.Get(); }
    COLORREF At(int x, int y) const {
        GdiFlush();
        const DWORD pixel = pixels_[y * kSide + x];
        return RGB(pixel >> 16 & 255, pixel >> 8 & 255, pixel & 255);
    }

    // The smallest rectangle that holds every pixel of another colour than `ground`.
    RECT Drawn(COLORREF ground) const {
        RECT r = {kSide, kSide, 0, 0};
        for (int y = 0; y < kSide; ++y)
            for (int x = 0; x < kSide; ++x)
                if (At(x, y) != ground)
                    r = {std::min<LONG>(r.left, x), std::min<LONG>(r.top, y), std::max<LONG>(r.right, x + 1),
                         std::max<LONG>(r.bottom, y + 1)};
        return r;
    }

  private:
    const DWORD* pixels_ = nullptr;
    win::UniqueBitmap bitmap_;
    win::Unique<HDC, DeleteDC> dc_; // goes first, and the bitmap with nothing selecting it
};

struct PictureRow {
    const char* name;
    int number;
    SIZE at96;
};

// clang-format off
constexpr PictureRow kPictures[] = {
    {"picScreenLogo", IDB_SCREEN_LOGO, {72, 72}},
    {"picCncIcon",    IDB_CNC_ICON,    {72, 72}},
    {"picLogo",       IDB_LOGO,        {96, 40}},
    {"picVarnel",     IDB_VARNEL,      {80, 24}},
};

struct IconRow {
    const char* name;
    int number;
    std::vector<int> sizes;
};

const IconRow kIcons[] = {
    {"First-Time Setup Wizard", IDI_DEVICE,       {16, 20, 24, 32, 40, 48, 64, 256}},
    {"New Device Wizard",       IDI_DEVICE + 1,   {16, 20, 24, 32, 40, 48, 64, 256}},
    {"File Manager",            IDI_APP_ICON,     {32, 40, 48, 64}},
    {"Link Manager",            IDI_APP_ICON + 1, {32, 40, 48, 64}},
    {"Configuration",           IDI_APP_ICON + 2, {32, 40, 48, 64}},
    {"Terminal",                IDI_APP_ICON + 3, {32, 40, 48, 64}},
    {"Navigator",               IDI_APP_ICON + 4, {32, 40, 48, 64}},
};
// clang-format on

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);

// The resolutions drawn for, and two that are not.
TEST(Picture, HasItsSizeAtEachResolution) {
    for (const PictureRow& row : kPictures)
        for (const int dpi : {96, 120, 144, 192, 168, 288}) {
            SCOPED_TRACE(std::string(row.name) + " at " + std::to_string(dpi));
            const win::Picture picture(row.number, dpi);
            const SIZE expected = {row.at96.cx * dpi / 96, row.at96.cy * dpi / 96};
            EXPECT_EQ(picture.Size().cx, expected.cx);
            EXPECT_EQ(picture.Size().cy, expected.cy);

            const Canvas canvas(kWhite);
            picture.Draw(canvas.Dc(), 7, 9);
            const RECT drawn = canvas.Drawn(kWhite);
            EXPECT_EQ(drawn.left, 7);
            EXPECT_EQ(drawn.top, 9);
            EXPECT_EQ(drawn.right, std::min<LONG>(7 + expected.cx, Canvas::kSide));
            EXPECT_EQ(drawn.bottom, std::min<LONG>(9 + expected.cy, Canvas::kSide));
        }
}

TEST(Picture, StandsOnTheColourOfTheColumn) {
    for (const PictureRow& row : kPictures)
        for (const int dpi : win::kPictureDpi) {
            SCOPED_TRACE(std::string(row.name) + " at " + std::to_string(dpi));
            const win::Picture picture(row.number, dpi);
            const Canvas canvas(kColumnColour);
            picture.Draw(canvas.Dc(), 0, 0);
            EXPECT_EQ(canvas.At(picture.Size().cx - 1, 0), kColumnColour);
            EXPECT_EQ(canvas.At(picture.Size().cx - 1, picture.Size().cy - 1), kColumnColour);
            const RECT drawn = canvas.Drawn(kColumnColour);
            EXPECT_GE(drawn.right - drawn.left, picture.Size().cx / 4);
        }
}

TEST(Picture, TakesTheNextHigherResolution) {
    constexpr std::pair<int, int> kSteps[] = {{72, 0},  {96, 0},  {97, 1},  {120, 1}, {144, 2},
                                              {145, 3}, {192, 3}, {193, 3}, {480, 3}};
    for (const auto& [dpi, step] : kSteps)
        EXPECT_EQ(win::PictureStep(dpi), step) << dpi;
}

TEST(Picture, DrawsNothingWithoutAResource) {
    const Canvas canvas(kWhite);
    const win::Picture picture(9999, 96);
    picture.Draw(canvas.Dc(), 0, 0);
    win::IconPicture(9999, 32).Draw(canvas.Dc(), 0, 0);
    EXPECT_EQ(picture.Size().cx, 0);
    EXPECT_EQ(canvas.Drawn(kWhite).right, 0);
}

// Widths in an icon directory; its entries are 14 bytes long in a resource and 16 in a file.
std::vector<int> FrameSizes(const BYTE* directory, int entryLength) {
    std::vector<int> sizes;
    for (int i = 0; i < directory[4]; ++i) {
        const int width = directory[6 + i * entryLength];
        sizes.push_back(width == 0 ? 256 : width);
    }
    return sizes;
}

std::vector<int> LinkedFrameSizes(int number) {
    const HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(number), RT_GROUP_ICON);
    if (!found) return {};
    return FrameSizes(static_cast<const BYTE*>(LockResource(LoadResource(nullptr, found))), 14);
}

struct Coverage {
    int clear = 0;   // pixels that show the ground
    int blended = 0; // that let it shine through
    int solid = 0;   // that hide it
};

// What an icon does to its ground, found by drawing it on white and on black.
Coverage Measure(HICON icon, int size) {
    const Canvas onWhite(kWhite);
    const Canvas onBlack(kBlack);
    DrawIconEx(onWhite.Dc(), 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
    DrawIconEx(onBlack.Dc(), 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
    Coverage result;
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
            const int difference = GetRValue(onWhite.At(x, y)) - GetRValue(onBlack.At(x, y));
            ++(difference == 0 ? result.solid : difference == 255 ? result.clear : result.blended);
        }
    return result;
}

TEST(IconPicture, HasAFrameForEachSizeAndSmoothCorners) {
    for (const IconRow& row : kIcons) {
        EXPECT_EQ(LinkedFrameSizes(row.number), row.sizes) << row.name;
        for (const int size : row.sizes) {
            SCOPED_TRACE(std::string(row.name) + " at " + std::to_string(size));
            const Coverage coverage = Measure(win::IconPicture(row.number, size).Get(), size);
            EXPECT_GT(coverage.solid, size * size / 2); // a tile with round, smooth corners
            EXPECT_GT(coverage.blended, 3);
            EXPECT_LT(coverage.blended, size * size / 4);
        }
    }
}

TEST(IconPicture, DrawsAtItsPlace) {
    const Canvas canvas(kWhite);
    win::IconPicture(IDI_APP_ICON, 40).Draw(canvas.Dc(), 11, 13);
    const RECT drawn = canvas.Drawn(kWhite);
    EXPECT_EQ(drawn.left, 11);
    EXPECT_EQ(drawn.top, 13);
    EXPECT_EQ(drawn.right, 51);
    EXPECT_EQ(drawn.bottom, 53);
}

BOOL CALLBACK AddLength(HMODULE, LPCWSTR type, LPWSTR name, LONG_PTR sum) {
    *reinterpret_cast<DWORD*>(sum) += SizeofResource(nullptr, FindResourceW(nullptr, name, type));
    return TRUE;
}

TEST(Artwork, IsSmall) {
    DWORD bytes = 0;
    for (const LPWSTR type : {RT_BITMAP, RT_ICON, RT_GROUP_ICON})
        EnumResourceNamesW(nullptr, type, AddLength, reinterpret_cast<LONG_PTR>(&bytes));
    EXPECT_GT(bytes, 20'000u);
    EXPECT_LE(bytes, 150'000u);
}

std::wstring IconFolder() {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring program = path;
    return program.substr(0, program.rfind(L'\\') + 1) + L"Icons\\";
}

std::vector<BYTE> ReadWhole(const std::wstring& path) {
    const win::UniqueKernelHandle file(
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    std::vector<BYTE> bytes(100'000);
    DWORD length = 0;
    ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &length, nullptr);
    bytes.resize(length);
    return bytes;
}

TEST(DeviceIcons, HaveTheirSizesAndAreTransparent) {
    std::set<std::wstring> names;
    WIN32_FIND_DATAW entry = {};
    const win::UniqueFind search(FindFirstFileW((IconFolder() + L"*.ICO").c_str(), &entry));
    ASSERT_NE(search.Get(), INVALID_HANDLE_VALUE);
    do {
        const std::wstring name = entry.cFileName;
        SCOPED_TRACE(std::string(name.begin(), name.end()));
        names.insert(name);
        const std::vector<BYTE> file = ReadWhole(IconFolder() + name);
        ASSERT_GT(file.size(), 6u);
        EXPECT_EQ(FrameSizes(file.data(), 16), (std::vector<int>{16, 24, 32, 48, 64}));
        for (const int size : {16, 24, 32, 48, 64}) {
            const win::UniqueIcon icon(static_cast<HICON>(
                LoadImageW(nullptr, (IconFolder() + name).c_str(), IMAGE_ICON, size, size, LR_LOADFROMFILE)));
            ASSERT_TRUE(icon);
            const Coverage coverage = Measure(icon.Get(), size);
            EXPECT_GT(coverage.clear, size * size / 10);
            EXPECT_GT(coverage.solid, size * size / 6);
        }
    } while (FindNextFileW(search.Get(), &entry));
    EXPECT_GE(names.size(), 12u);
    EXPECT_TRUE(names.contains(L"VDNC32.ICO"));
}

} // namespace

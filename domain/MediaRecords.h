#pragma once

/// @file
/// The records of streams, overlays and masks.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

#include <cstdint>
#include <string>

/// The size of the tiles of a mosaic.
class MosaicParam
{
public:
    /// In pixels.
    std::uint32_t getWidth() const { return width_; }
    void setWidth(std::uint32_t width) { width_ = width; }

    /// In pixels.
    std::uint32_t getHeight() const { return height_; }
    void setHeight(std::uint32_t height) { height_ = height; }

private:
    std::uint32_t width_ = 0;
    std::uint32_t height_ = 0;
};

/// A text on the picture, at a position in whole numbers.
class OSDInfo
{
public:
    /// What the text shows, as the device numbers it.
    int getOSDType() const { return osdType_; }
    void setOSDType(int osdType) { osdType_ = osdType; }

    /// Whether it is drawn.
    bool getOSDEnableFlag() const { return osdEnableFlag_; }
    void setOSDEnableFlag(bool osdEnableFlag) { osdEnableFlag_ = osdEnableFlag; }

    /// Its upper left corner, across.
    int getTopX() const { return topX_; }
    void setTopX(int topX) { topX_ = topX; }

    /// Its upper left corner, down.
    int getTopY() const { return topY_; }
    void setTopY(int topY) { topY_ = topY; }

    /// The text itself.
    const std::string& getInfo() const { return info_; }
    void setInfo(const std::string& info) { info_ = info; }

private:
    int osdType_ = 0;
    bool osdEnableFlag_ = false;
    int topX_ = 0;
    int topY_ = 0;
    std::string info_;
};

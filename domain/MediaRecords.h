#pragma once

/// @file
/// The records of streams, overlays and masks.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

#include <cstdint>

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

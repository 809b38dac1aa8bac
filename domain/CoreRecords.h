#pragma once

/// @file
/// The small records that others embed.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

#include <cstdint>
#include <string>
#include <vector>

/// A point in time as a calendar on the device shows it.
class TimeStruct
{
public:
    /// The time zone that the fields are in, as the device numbers it.
    int getTimeZone() const { return timeZone_; }
    void setTimeZone(int timeZone) { timeZone_ = timeZone; }

    /// Whether, or by how much, daylight saving time is in force; the device decides.
    std::uint16_t getDaylightSavingTime() const { return daylightSavingTime_; }
    void setDaylightSavingTime(std::uint16_t daylightSavingTime) { daylightSavingTime_ = daylightSavingTime; }

    /// All four digits.
    std::uint16_t getYear() const { return year_; }
    void setYear(std::uint16_t year) { year_ = year; }

    /// 1 to 12.
    std::uint16_t getMonth() const { return month_; }
    void setMonth(std::uint16_t month) { month_ = month; }

    /// 1 to 31.
    std::uint16_t getDay() const { return day_; }
    void setDay(std::uint16_t day) { day_ = day; }

    /// Day of the week, as the device counts it.
    std::uint16_t getDayOfWeek() const { return dayOfWeek_; }
    void setDayOfWeek(std::uint16_t dayOfWeek) { dayOfWeek_ = dayOfWeek; }

    /// 0 to 23.
    std::uint16_t getHour() const { return hour_; }
    void setHour(std::uint16_t hour) { hour_ = hour; }

    /// 0 to 59.
    std::uint16_t getMinute() const { return minute_; }
    void setMinute(std::uint16_t minute) { minute_ = minute; }

    /// 0 to 59.
    std::uint16_t getSecond() const { return second_; }
    void setSecond(std::uint16_t second) { second_ = second; }

    /// 0 to 999.
    int getMilliseconds() const { return milliseconds_; }
    void setMilliseconds(int milliseconds) { milliseconds_ = milliseconds; }

private:
    int timeZone_ = 0;
    std::uint16_t daylightSavingTime_ = 0;
    std::uint16_t year_ = 0;
    std::uint16_t month_ = 0;
    std::uint16_t day_ = 0;
    std::uint16_t dayOfWeek_ = 0;
    std::uint16_t hour_ = 0;
    std::uint16_t minute_ = 0;
    std::uint16_t second_ = 0;
    int milliseconds_ = 0;
};

/// A range of network addresses, both ends included.
class IPAddrSegment
{
public:
    /// Version of the Internet protocol, as the device numbers it. The name lacks the "t" of the document's.
    int getIPProVer() const { return ipProVer_; }
    void setIPProVer(const int& ipProVer) { ipProVer_ = ipProVer; }

    /// First address, as text.
    const std::string& getBeginIP() const { return beginIP_; }
    void setBeginIP(const std::string& beginIP) { beginIP_ = beginIP; }

    /// Last address, as text.
    const std::string& getEndIP() const { return endIP_; }
    void setEndIP(const std::string& endIP) { endIP_ = endIP; }

private:
    int ipProVer_ = 0;
    std::string beginIP_;
    std::string endIP_;
};

/// A point on a picture.
class ZTPoint
{
public:
    ZTPoint() = default;
    ZTPoint(float x, float y) : x_(x), y_(y) {}

    /// Across, from the left.
    float getX() const { return x_; }
    void setX(float x) { x_ = x; }

    /// Down, from the top.
    float getY() const { return y_; }
    void setY(float y) { y_ = y; }

private:
    float x_ = 0.0F;
    float y_ = 0.0F;
};

/// An area on a picture, by the points of its outline in order.
class PolygonArea
{
public:
    /// The points of the outline.
    /// @{
    const std::vector<ZTPoint>& getVecPoints() const { return vecPoints_; }
    std::vector<ZTPoint>& getVecPoints() { return vecPoints_; }
    void setVecPoints(const std::vector<ZTPoint>& vecPoints) { vecPoints_ = vecPoints; }
    /// @}
    /// Appends a point.
    void addPoint(float x, float y) { vecPoints_.emplace_back(x, y); }
    /// Removes all points.
    void clear() { vecPoints_.clear(); }

private:
    std::vector<ZTPoint> vecPoints_;
};

/// A line on a picture, in the direction from its start to its end.
class LineCross
{
public:
    /// Start, across.
    float getLineCrossStartX() const { return lineCrossStartX_; }
    void setLineCrossStartX(float lineCrossStartX) { lineCrossStartX_ = lineCrossStartX; }

    /// Start, down.
    float getLineCrossStartY() const { return lineCrossStartY_; }
    void setLineCrossStartY(float lineCrossStartY) { lineCrossStartY_ = lineCrossStartY; }

    /// End, across.
    float getLineCrossEndX() const { return lineCrossEndX_; }
    void setLineCrossEndX(float lineCrossEndX) { lineCrossEndX_ = lineCrossEndX; }

    /// End, down.
    float getLineCrossEndY() const { return lineCrossEndY_; }
    void setLineCrossEndY(float lineCrossEndY) { lineCrossEndY_ = lineCrossEndY; }

private:
    float lineCrossStartX_ = 0.0F;
    float lineCrossStartY_ = 0.0F;
    float lineCrossEndX_ = 0.0F;
    float lineCrossEndY_ = 0.0F;
};

/// The versions of a device, as its maker writes them.
class Version
{
public:
    /// Version of the hardware.
    const std::string& getHardwareVer() const { return hardwareVer_; }
    void setHardwareVer(const std::string& hardwareVer) { hardwareVer_ = hardwareVer; }

    /// Version of the firmware.
    const std::string& getSoftwareVer() const { return softwareVer_; }
    void setSoftwareVer(const std::string& softwareVer) { softwareVer_ = softwareVer; }

private:
    std::string hardwareVer_;
    std::string softwareVer_;
};

/// A colour with its transparency, as the device scales them.
class ColorParam
{
public:
    /// Share of red.
    std::uint32_t getRed() const { return red_; }
    void setRed(std::uint32_t red) { red_ = red; }

    /// Share of green.
    std::uint32_t getGreen() const { return green_; }
    void setGreen(std::uint32_t green) { green_ = green; }

    /// Share of blue.
    std::uint32_t getBlue() const { return blue_; }
    void setBlue(std::uint32_t blue) { blue_ = blue; }

    /// Opacity.
    std::uint32_t getAlpha() const { return alpha_; }
    void setAlpha(std::uint32_t alpha) { alpha_ = alpha; }

private:
    std::uint32_t red_ = 0;
    std::uint32_t green_ = 0;
    std::uint32_t blue_ = 0;
    std::uint32_t alpha_ = 0;
};

// FE 01 00 26                                  mark, version, length of the payload
//     01                                       one target
//         FA 00  00 00 00 07  02               mark, index, ID, type
//         2D 19  03 32                         direction 45.25, speed 3.50
//         0A 14                                point
//         05 06  23 06  23 2E  05 2E           the corners of its area, clockwise from the top left
//         01  07 08                            one point of its trajectory
//         FB                                   end mark
//     01                                       one event
//         FC 00  00 00 00 09  01 01            mark, index, ID, type, status
//         00                                   no point of its area
//         00                                   no related target
//         FD                                   end mark
// 8C FF                                        checksum, trailer

#include "alarm/AlarmDetailCreator.h"

#include "core/Conversions.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <utility>

namespace
{

constexpr unsigned frameMark = 0xFE;
constexpr unsigned version = 0x01;
constexpr unsigned targetMark = 0xFA;
constexpr unsigned targetEnd = 0xFB;
constexpr unsigned eventMark = 0xFC;
constexpr unsigned eventEnd = 0xFD;
constexpr unsigned trailer = 0xFF;

constexpr std::size_t capacity = 2048;
constexpr std::size_t headerSize = 4;
constexpr std::size_t trailerSize = 2; // with the checksum
constexpr std::size_t targetSize = 23; // without its trajectory
constexpr std::size_t eventSize = 11;  // without its points and targets
constexpr std::size_t pointSize = 2;
constexpr std::size_t numberSize = 4;

/// Puts numbers one behind the other, each cut to its place.
class Writer
{
public:
    explicit Writer(unsigned char* first) : at_(first) {}

    unsigned char* at() const { return at_; }

    void byte(std::size_t value) { *at_++ = static_cast<unsigned char>(value); }

    void number(int value)
    {
        const auto bits = static_cast<std::uint32_t>(value);
        for (const int shift : {24, 16, 8, 0})
            byte(bits >> shift);
    }

    void hundredths(float value)
    {
        // As peers calculate it, 1.05 is 1 and 4: the product is no wider than 32 bits, on any processor.
        const volatile float hundredfold = value * 100.0F;
        byte(static_cast<std::uint32_t>(frame::intFrom(value)));
        byte(static_cast<std::uint32_t>(frame::intFrom(hundredfold) % 100));
    }

    void point(const ZTPoint& point)
    {
        byte(frame::unsignedFrom(point.getX()));
        byte(frame::unsignedFrom(point.getY()));
    }

    void points(const std::vector<ZTPoint>& points)
    {
        byte(points.size());
        for (const ZTPoint& each : points)
            point(each);
    }

    void corners(const DetectionArea& area)
    {
        const auto left = static_cast<std::uint32_t>(area.getTopX());
        const auto top = static_cast<std::uint32_t>(area.getTopY());
        const auto right = left + static_cast<std::uint32_t>(area.getWidth());
        const auto bottom = top + static_cast<std::uint32_t>(area.getHigh());
        for (const std::uint32_t place : {left, top, right, top, right, bottom, left, bottom})
            byte(place);
    }

private:
    unsigned char* at_;
};

/// Takes numbers one behind the other. Whoever takes them asks first whether there are enough bytes.
class Reader
{
public:
    Reader(const unsigned char* first, std::size_t size) : first_(first), at_(first), left_(size) {}

    bool has(std::size_t count) const { return count <= left_; }
    int taken() const { return static_cast<int>(at_ - first_); }

    unsigned byte()
    {
        --left_;
        return *at_++;
    }

    int number()
    {
        std::uint32_t bits = 0;
        for (std::size_t place = 0; place < numberSize; ++place)
            bits = bits << 8 | byte();
        return static_cast<int>(bits);
    }

    float hundredths()
    {
        const unsigned whole = byte();
        return static_cast<float>(whole + byte() / 100.0);
    }

    ZTPoint point()
    {
        const auto x = static_cast<float>(byte());
        return ZTPoint(x, static_cast<float>(byte()));
    }

    DetectionArea corners()
    {
        unsigned corner[8];
        for (unsigned& place : corner)
            place = byte();
        DetectionArea area;
        area.setTopX(static_cast<int>(corner[0]));
        area.setTopY(static_cast<int>(corner[1]));
        area.setWidth(static_cast<int>(corner[4]) - static_cast<int>(corner[0]));
        area.setHigh(static_cast<int>(corner[5]) - static_cast<int>(corner[1]));
        return area;
    }

private:
    const unsigned char* first_;
    const unsigned char* at_;
    std::size_t left_;
};

std::size_t sizeOf(const AlarmDetail& detail)
{
    std::size_t size = headerSize + 2 + trailerSize;
    for (const AlarmDetailTarget& target : detail.getAlarmTarget())
        size += targetSize + pointSize * target.getTraject().size();
    for (const AlarmDetailEvent& event : detail.getAlarmEvent())
        size += eventSize + pointSize * event.getAlarmArea().getVecPoints().size() +
                numberSize * event.getRelatedTargetIDList().size();
    return size;
}

void write(Writer& writer, std::size_t index, const AlarmDetailTarget& target)
{
    writer.byte(targetMark);
    writer.byte(index);
    writer.number(target.getID());
    writer.byte(static_cast<unsigned char>(target.getType()));
    writer.hundredths(target.getDirection());
    writer.hundredths(target.getSpeed());
    writer.point(target.getPoint());
    writer.corners(target.getTargetArea());
    writer.points(target.getTraject());
    writer.byte(targetEnd);
}

void write(Writer& writer, std::size_t index, const AlarmDetailEvent& event)
{
    writer.byte(eventMark);
    writer.byte(index);
    writer.number(event.getID());
    writer.byte(static_cast<unsigned char>(event.getType()));
    writer.byte(static_cast<unsigned char>(event.getStatus()));
    writer.points(event.getAlarmArea().getVecPoints());
    writer.byte(event.getRelatedTargetIDList().size());
    for (const int id : event.getRelatedTargetIDList())
        writer.number(id);
    writer.byte(eventEnd);
}

int readTargets(Reader reader, std::vector<AlarmDetailTarget>& targets)
{
    if (!reader.has(1)) return -1;
    const unsigned count = reader.byte();
    for (unsigned block = 0; block < count; ++block)
    {
        // An index may be equal to the count, and is not looked at beyond that.
        if (!reader.has(targetSize) || reader.byte() != targetMark || reader.byte() > count) return -1;
        AlarmDetailTarget target;
        target.setID(reader.number());
        target.setType(static_cast<char>(reader.byte()));
        target.setDirection(reader.hundredths());
        target.setSpeed(reader.hundredths());
        target.setPoint(reader.point());
        target.setTargetArea(reader.corners());

        const unsigned points = reader.byte();
        if (!reader.has(points * pointSize + 1)) return -1;
        for (unsigned point = 0; point < points; ++point)
            target.setTraject(reader.point());
        if (reader.byte() != targetEnd) return -1;
        targets.push_back(std::move(target));
    }
    return reader.taken();
}

int readEvents(Reader reader, std::vector<AlarmDetailEvent>& events)
{
    if (!reader.has(1)) return -1;
    const unsigned count = reader.byte();
    // One event for all blocks: peers expect that each brings along the points and targets of those before it.
    AlarmDetailEvent event;
    for (unsigned block = 0; block < count; ++block)
    {
        if (!reader.has(eventSize) || reader.byte() != eventMark || reader.byte() > count) return -1;
        event.setID(reader.number());
        event.setType(static_cast<char>(reader.byte()));
        event.setStatus(static_cast<char>(reader.byte()));

        const unsigned points = reader.byte();
        if (!reader.has(points * pointSize + 2)) return -1;
        for (unsigned point = 0; point < points; ++point)
            event.setAlarmArea(reader.point());

        const unsigned ids = reader.byte();
        if (!reader.has(ids * numberSize + 1)) return -1;
        for (unsigned id = 0; id < ids; ++id)
            event.setRelatedTargetID(reader.number());
        if (reader.byte() != eventEnd) return -1;
        events.push_back(event);
    }
    return reader.taken();
}

/// The number of payload bytes that a frame's header tells.
int payloadLength(const unsigned char* bytes)
{
    return static_cast<std::int16_t>(bytes[2] << 8 | bytes[3]);
}

/// The sum of what stands from behind the start mark up to @p end.
unsigned char checksum(const unsigned char* bytes, const unsigned char* end)
{
    unsigned sum = 0;
    for (const unsigned char* byte = bytes + 1; byte < end; ++byte)
        sum += *byte;
    return static_cast<unsigned char>(sum);
}

} // namespace

AlarmDetailCreator::AlarmDetailCreator() : buffer_(new unsigned char[capacity]())
{
}

AlarmDetailCreator::~AlarmDetailCreator() = default;

bool AlarmDetailCreator::creatAlarmDetail(const AlarmDetail& detail, char** frame, int& length)
{
    const std::size_t size = sizeOf(detail);
    if (frame == nullptr || size > capacity) return false;

    Writer writer(buffer_.get());
    const std::size_t payload = size - headerSize - trailerSize;
    writer.byte(frameMark);
    writer.byte(version);
    writer.byte(payload >> 8);
    writer.byte(payload);

    const std::vector<AlarmDetailTarget>& targets = detail.getAlarmTarget();
    writer.byte(targets.size());
    for (std::size_t index = 0; index < targets.size(); ++index)
        write(writer, index, targets[index]);

    const std::vector<AlarmDetailEvent>& events = detail.getAlarmEvent();
    writer.byte(events.size());
    for (std::size_t index = 0; index < events.size(); ++index)
        write(writer, index, events[index]);

    writer.byte(checksum(buffer_.get(), writer.at()));
    writer.byte(trailer);

    *frame = reinterpret_cast<char*>(buffer_.get());
    length = static_cast<int>(size);
    return true;
}

bool AlarmDetailCreator::parseAlarmDetail(const char* frame, AlarmDetail& detail) const
{
    if (frame == nullptr) return false;

    const auto* bytes = reinterpret_cast<const unsigned char*>(frame);
    if (bytes[0] != frameMark || bytes[1] != version) return false;

    const int length = payloadLength(bytes);
    if (length < 0) return false;
    const unsigned char* end = bytes + headerSize + length;
    if (checksum(bytes, end) != end[0] || end[1] != trailer) return false;

    // Behind the payload the checksum and the trailer may be read for the blocks that they are not, but no byte more.
    const std::size_t readable = static_cast<std::size_t>(length) + trailerSize;
    std::vector<AlarmDetailTarget> targets;
    const int targetBytes = readTargets(Reader(bytes + headerSize, readable), targets);
    if (targetBytes < 0) return false;

    // Events that cannot be read count as -1 byte: peers accept the frame whose targets run over its checksum.
    std::vector<AlarmDetailEvent> events;
    const auto taken = static_cast<std::size_t>(targetBytes);
    const int eventBytes = readEvents(Reader(bytes + headerSize + taken, readable - taken), events);
    if (length != targetBytes + eventBytes) return false;

    // Moved, not copied: by what events bring along, a frame of 32 KB can become some 30 MB of points.
    std::move(targets.begin(), targets.end(), std::back_inserter(detail.getAlarmTarget()));
    std::move(events.begin(), events.end(), std::back_inserter(detail.getAlarmEvent()));
    return true;
}

bool AlarmDetailCreator::parseAlarmDetail(const char* frame, int received, AlarmDetail& detail) const
{
    const int smallest = headerSize + trailerSize;
    if (frame == nullptr || received < smallest) return false;
    if (payloadLength(reinterpret_cast<const unsigned char*>(frame)) > received - smallest) return false;
    return parseAlarmDetail(frame, detail);
}

int AlarmDetailCreator::getTarget(const unsigned char* data, std::vector<AlarmDetailTarget>& targets) const
{
    return readTargets(Reader(data, std::numeric_limits<std::size_t>::max()), targets);
}

int AlarmDetailCreator::getEvent(const unsigned char* data, std::vector<AlarmDetailEvent>& events) const
{
    return readEvents(Reader(data, std::numeric_limits<std::size_t>::max()), events);
}

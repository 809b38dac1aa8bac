#include "alarm/AlarmDetailCreator.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace
{

using Bytes = std::vector<unsigned char>;

const Bytes emptyFrame = {0xFE, 0x01, 0x00, 0x02, 0x00, 0x00, 0x03, 0xFF};

// One target and one event.
const Bytes workedFrame = {0xFE, 0x01, 0x00, 0x32, 0x01, 0xFA, 0x00, 0x00, 0x00, 0x00, 0x07, 0x02, 0x2D, 0x19,
                           0x03, 0x32, 0x0A, 0x14, 0x05, 0x06, 0x23, 0x06, 0x23, 0x2E, 0x05, 0x2E, 0x02, 0x07,
                           0x08, 0x09, 0x0A, 0xFB, 0x01, 0xFC, 0x00, 0x00, 0x00, 0x00, 0x09, 0x01, 0x01, 0x03,
                           0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x01, 0x00, 0x00, 0x00, 0x07, 0xFD, 0xCC, 0xFF};

DetectionArea area(int left, int top, int width, int high)
{
    DetectionArea area;
    area.setTopX(left);
    area.setTopY(top);
    area.setWidth(width);
    area.setHigh(high);
    return area;
}

AlarmDetailTarget workedTarget()
{
    AlarmDetailTarget target;
    target.setID(7);
    target.setType(2);
    target.setDirection(45.25F);
    target.setSpeed(3.5F);
    target.setPoint(ZTPoint(10, 20));
    target.setTargetArea(area(5, 6, 30, 40));
    target.setTraject(ZTPoint(7, 8));
    target.setTraject(ZTPoint(9, 10));
    return target;
}

AlarmDetailEvent workedEvent()
{
    AlarmDetailEvent event;
    event.setID(9);
    event.setType(1);
    event.setStatus(1);
    event.setAlarmArea(ZTPoint(1, 2));
    event.setAlarmArea(ZTPoint(3, 4));
    event.setAlarmArea(ZTPoint(5, 6));
    event.setRelatedTargetID(7);
    return event;
}

AlarmDetail workedDetail()
{
    AlarmDetail detail;
    detail.setAlarmTarget(workedTarget());
    detail.setAlarmEvent(workedEvent());
    return detail;
}

AlarmDetail detailOf(const AlarmDetailTarget& target)
{
    AlarmDetail detail;
    detail.setAlarmTarget(target);
    return detail;
}

Bytes frameOf(const AlarmDetail& detail)
{
    AlarmDetailCreator creator;
    char* frame = nullptr;
    int length = 0;
    EXPECT_TRUE(creator.creatAlarmDetail(detail, &frame, length));
    return Bytes(frame, frame + length);
}

// The frame lies in memory of just its size, so that the sanitizer sees what is read behind it.
bool parses(const Bytes& frame, AlarmDetail& detail)
{
    const Bytes exact(frame.begin(), frame.end());
    return AlarmDetailCreator().parseAlarmDetail(reinterpret_cast<const char*>(exact.data()), detail);
}

bool parsesReceived(const Bytes& bytes, AlarmDetail& detail)
{
    const Bytes exact(bytes.begin(), bytes.end());
    return AlarmDetailCreator().parseAlarmDetail(reinterpret_cast<const char*>(exact.data()),
                                                 static_cast<int>(exact.size()), detail);
}

// A frame around @p payload.
Bytes framed(const Bytes& payload, std::size_t length)
{
    Bytes frame = {0xFE, 0x01, static_cast<unsigned char>(length >> 8), static_cast<unsigned char>(length)};
    frame.insert(frame.end(), payload.begin(), payload.end());
    unsigned sum = 0;
    for (std::size_t offset = 1; offset < 4 + length && offset < frame.size(); ++offset)
        sum += frame[offset];
    frame.push_back(static_cast<unsigned char>(sum));
    frame.push_back(0xFF);
    return frame;
}

Bytes framed(const Bytes& payload)
{
    return framed(payload, payload.size());
}

void expectPoints(const std::vector<ZTPoint>& expected, const std::vector<ZTPoint>& points)
{
    ASSERT_EQ(expected.size(), points.size());
    for (std::size_t place = 0; place < points.size(); ++place)
    {
        EXPECT_EQ(expected[place].getX(), points[place].getX());
        EXPECT_EQ(expected[place].getY(), points[place].getY());
    }
}

void expectTarget(const AlarmDetailTarget& expected, const AlarmDetailTarget& target)
{
    EXPECT_EQ(expected.getID(), target.getID());
    EXPECT_EQ(expected.getType(), target.getType());
    EXPECT_EQ(expected.getDirection(), target.getDirection());
    EXPECT_EQ(expected.getSpeed(), target.getSpeed());
    EXPECT_EQ(expected.getPoint().getX(), target.getPoint().getX());
    EXPECT_EQ(expected.getPoint().getY(), target.getPoint().getY());
    EXPECT_EQ(expected.getTargetArea().getTopX(), target.getTargetArea().getTopX());
    EXPECT_EQ(expected.getTargetArea().getTopY(), target.getTargetArea().getTopY());
    EXPECT_EQ(expected.getTargetArea().getWidth(), target.getTargetArea().getWidth());
    EXPECT_EQ(expected.getTargetArea().getHigh(), target.getTargetArea().getHigh());
    expectPoints(expected.getTraject(), target.getTraject());
}

void expectEvent(const AlarmDetailEvent& expected, const AlarmDetailEvent& event)
{
    EXPECT_EQ(expected.getID(), event.getID());
    EXPECT_EQ(expected.getType(), event.getType());
    EXPECT_EQ(expected.getStatus(), event.getStatus());
    expectPoints(expected.getAlarmArea().getVecPoints(), event.getAlarmArea().getVecPoints());
    EXPECT_EQ(expected.getRelatedTargetIDList(), event.getRelatedTargetIDList());
}

void expectDetail(const AlarmDetail& expected, const AlarmDetail& detail)
{
    ASSERT_EQ(expected.getAlarmTarget().size(), detail.getAlarmTarget().size());
    for (std::size_t place = 0; place < detail.getAlarmTarget().size(); ++place)
        expectTarget(expected.getAlarmTarget()[place], detail.getAlarmTarget()[place]);
    ASSERT_EQ(expected.getAlarmEvent().size(), detail.getAlarmEvent().size());
    for (std::size_t place = 0; place < detail.getAlarmEvent().size(); ++place)
        expectEvent(expected.getAlarmEvent()[place], detail.getAlarmEvent()[place]);
}

void expectRefused(const Bytes& frame)
{
    AlarmDetail detail = workedDetail();
    EXPECT_FALSE(parses(frame, detail));
    expectDetail(workedDetail(), detail);
}

// A second encoder and decoder, written along the offsets of the format.

std::size_t sizeOf(const AlarmDetail& detail)
{
    std::size_t size = 8;
    for (const AlarmDetailTarget& target : detail.getAlarmTarget())
        size += 23 + 2 * target.getTraject().size();
    for (const AlarmDetailEvent& event : detail.getAlarmEvent())
        size += 11 + 2 * event.getAlarmArea().getVecPoints().size() + 4 * event.getRelatedTargetIDList().size();
    return size;
}

void putNumber(Bytes& block, std::size_t offset, int value)
{
    for (int place = 0; place < 4; ++place)
        block[offset + static_cast<std::size_t>(place)] =
            static_cast<unsigned char>(static_cast<unsigned>(value) >> (24 - 8 * place));
}

unsigned char coordinate(float value)
{
    return value < 0 ? 0 : static_cast<unsigned char>(static_cast<std::uint64_t>(value));
}

void putPoints(Bytes& block, std::size_t offset, const std::vector<ZTPoint>& points)
{
    block[offset++] = static_cast<unsigned char>(points.size());
    for (const ZTPoint& point : points)
    {
        block[offset++] = coordinate(point.getX());
        block[offset++] = coordinate(point.getY());
    }
}

Bytes encoded(const AlarmDetail& detail)
{
    Bytes payload;
    payload.push_back(static_cast<unsigned char>(detail.getAlarmTarget().size()));
    for (std::size_t index = 0; index < detail.getAlarmTarget().size(); ++index)
    {
        const AlarmDetailTarget& target = detail.getAlarmTarget()[index];
        Bytes block(23 + 2 * target.getTraject().size());
        block[0] = 0xFA;
        block[1] = static_cast<unsigned char>(index);
        putNumber(block, 2, target.getID());
        block[6] = static_cast<unsigned char>(target.getType());
        block[7] = static_cast<unsigned char>(static_cast<int>(target.getDirection()));
        block[8] = static_cast<unsigned char>(static_cast<int>(target.getDirection() * 100.0F) % 100);
        block[9] = static_cast<unsigned char>(static_cast<int>(target.getSpeed()));
        block[10] = static_cast<unsigned char>(static_cast<int>(target.getSpeed() * 100.0F) % 100);
        block[11] = coordinate(target.getPoint().getX());
        block[12] = coordinate(target.getPoint().getY());
        const DetectionArea& area = target.getTargetArea();
        block[13] = block[19] = static_cast<unsigned char>(area.getTopX());
        block[14] = block[16] = static_cast<unsigned char>(area.getTopY());
        block[15] = block[17] = static_cast<unsigned char>(area.getTopX() + area.getWidth());
        block[18] = block[20] = static_cast<unsigned char>(area.getTopY() + area.getHigh());
        putPoints(block, 21, target.getTraject());
        block.back() = 0xFB;
        payload.insert(payload.end(), block.begin(), block.end());
    }
    payload.push_back(static_cast<unsigned char>(detail.getAlarmEvent().size()));
    for (std::size_t index = 0; index < detail.getAlarmEvent().size(); ++index)
    {
        const AlarmDetailEvent& event = detail.getAlarmEvent()[index];
        const std::size_t points = event.getAlarmArea().getVecPoints().size();
        const std::size_t ids = event.getRelatedTargetIDList().size();
        Bytes block(11 + 2 * points + 4 * ids);
        block[0] = 0xFC;
        block[1] = static_cast<unsigned char>(index);
        putNumber(block, 2, event.getID());
        block[6] = static_cast<unsigned char>(event.getType());
        block[7] = static_cast<unsigned char>(event.getStatus());
        putPoints(block, 8, event.getAlarmArea().getVecPoints());
        block[9 + 2 * points] = static_cast<unsigned char>(ids);
        for (std::size_t id = 0; id < ids; ++id)
            putNumber(block, 10 + 2 * points + 4 * id, event.getRelatedTargetIDList()[id]);
        block.back() = 0xFD;
        payload.insert(payload.end(), block.begin(), block.end());
    }
    return framed(payload);
}

int numberAt(const Bytes& frame, std::size_t offset)
{
    return static_cast<int>(static_cast<unsigned>(frame[offset]) << 24 |
                            static_cast<unsigned>(frame[offset + 1]) << 16 |
                            static_cast<unsigned>(frame[offset + 2]) << 8 | frame[offset + 3]);
}

// What a frame that is known to be whole holds, several events in their accumulated state.
AlarmDetail decoded(const Bytes& frame)
{
    AlarmDetail detail;
    std::size_t block = 5;
    for (int count = frame[4]; count > 0; --count)
    {
        AlarmDetailTarget target;
        target.setID(numberAt(frame, block + 2));
        target.setType(static_cast<char>(frame[block + 6]));
        target.setDirection(static_cast<float>(frame[block + 7] + frame[block + 8] / 100.0));
        target.setSpeed(static_cast<float>(frame[block + 9] + frame[block + 10] / 100.0));
        target.setPoint(ZTPoint(frame[block + 11], frame[block + 12]));
        target.setTargetArea(area(frame[block + 13], frame[block + 14], frame[block + 17] - frame[block + 13],
                                  frame[block + 18] - frame[block + 14]));
        const std::size_t points = frame[block + 21];
        for (std::size_t point = 0; point < points; ++point)
            target.setTraject(ZTPoint(frame[block + 22 + 2 * point], frame[block + 23 + 2 * point]));
        detail.setAlarmTarget(target);
        block += 23 + 2 * points;
    }
    AlarmDetailEvent event;
    for (int count = frame[block++]; count > 0; --count)
    {
        event.setID(numberAt(frame, block + 2));
        event.setType(static_cast<char>(frame[block + 6]));
        event.setStatus(static_cast<char>(frame[block + 7]));
        const std::size_t points = frame[block + 8];
        for (std::size_t point = 0; point < points; ++point)
            event.setAlarmArea(ZTPoint(frame[block + 9 + 2 * point], frame[block + 10 + 2 * point]));
        const std::size_t ids = frame[block + 9 + 2 * points];
        for (std::size_t id = 0; id < ids; ++id)
            event.setRelatedTargetID(numberAt(frame, block + 10 + 2 * points + 4 * id));
        detail.setAlarmEvent(event);
        block += 11 + 2 * points + 4 * ids;
    }
    return detail;
}

// How many bytes the blocks take whose count stands at @p first; -1 if they are none, or leave the frame.
int lengthOfBlocks(const Bytes& frame, std::size_t first, bool events)
{
    const auto at = [&frame](std::size_t offset) { return offset < frame.size() ? int{frame[offset]} : -1; };
    const int count = at(first);
    std::size_t block = first + 1;
    for (int left = count; left > 0; --left)
    {
        const std::size_t points = block + (events ? 8 : 21);
        if (at(block) != (events ? 0xFC : 0xFA) || at(block + 1) > count || at(points) < 0) return -1;
        std::size_t end = points + 1 + 2 * frame[points];
        if (events && at(end) < 0) return -1;
        if (events) end += 1 + std::size_t{4} * frame[end];
        if (at(end) != (events ? 0xFD : 0xFB)) return -1;
        block = end + 1;
    }
    return static_cast<int>(block - first);
}

// Whether the blocks of a frame end where its length says.
bool isWhole(const Bytes& frame)
{
    const int targets = lengthOfBlocks(frame, 4, false);
    if (targets < 0) return false;
    const int events = lengthOfBlocks(frame, 4 + static_cast<std::size_t>(targets), true);
    return events > 0 && static_cast<std::size_t>(targets + events) + 6 == frame.size();
}

// Details of every size that fits, the same in every run.
class Details
{
public:
    AlarmDetail next()
    {
        AlarmDetail detail;
        for (int count = upTo(6); count > 0; --count)
        {
            AlarmDetailTarget target;
            target.setID(static_cast<int>(engine_()));
            target.setType(static_cast<char>(upTo(255)));
            target.setDirection(fraction());
            target.setSpeed(fraction());
            target.setPoint(point());
            target.setTargetArea(area(upTo(1000) - 500, upTo(1000) - 500, upTo(1000) - 500, upTo(1000) - 500));
            for (int points = upTo(20); points > 0; --points)
                target.setTraject(point());
            detail.setAlarmTarget(target);
        }
        for (int count = upTo(4); count > 0; --count)
        {
            AlarmDetailEvent event;
            event.setID(static_cast<int>(engine_()));
            event.setType(static_cast<char>(upTo(255)));
            event.setStatus(static_cast<char>(upTo(255)));
            for (int points = upTo(20); points > 0; --points)
                event.setAlarmArea(point());
            for (int ids = upTo(20); ids > 0; --ids)
                event.setRelatedTargetID(static_cast<int>(engine_()));
            detail.setAlarmEvent(event);
        }
        return detail;
    }

private:
    int upTo(unsigned last) { return static_cast<int>(engine_() % (last + 1)); }
    float fraction() { return static_cast<float>(upTo(80000) - 40000) / 128; }
    ZTPoint point() { return ZTPoint(fraction(), fraction()); }

    std::mt19937 engine_{7};
};

} // namespace

TEST(AlarmDetailCreator, WritesTheWorkedFrame)
{
    EXPECT_EQ(workedFrame, frameOf(workedDetail()));
}

TEST(AlarmDetailCreator, ReadsTheWorkedFrame)
{
    AlarmDetail detail;
    ASSERT_TRUE(parses(workedFrame, detail));
    expectDetail(workedDetail(), detail);
}

TEST(AlarmDetailCreator, WritesAndReadsAnEmptyDetail)
{
    EXPECT_EQ(emptyFrame, frameOf(AlarmDetail()));
    AlarmDetail detail = workedDetail();
    ASSERT_TRUE(parses(emptyFrame, detail));
    expectDetail(workedDetail(), detail);
}

TEST(AlarmDetailCreator, PutsTheEventsBehindACountOfNoTargets)
{
    AlarmDetail detail;
    detail.setAlarmEvent(workedEvent());
    const Bytes frame = frameOf(detail);
    EXPECT_EQ(0, frame[4]);
    EXPECT_EQ(1, frame[5]);
    EXPECT_EQ(0xFC, frame[6]);
    AlarmDetail read;
    ASSERT_TRUE(parses(frame, read));
    expectDetail(detail, read);
}

TEST(AlarmDetailCreator, AppendsWhatItReads)
{
    AlarmDetail detail;
    AlarmDetailTarget first;
    first.setID(1);
    detail.setAlarmTarget(first);
    ASSERT_TRUE(parses(workedFrame, detail));
    ASSERT_EQ(2U, detail.getAlarmTarget().size());
    expectTarget(first, detail.getAlarmTarget()[0]);
    expectTarget(workedTarget(), detail.getAlarmTarget()[1]);
    EXPECT_EQ(1U, detail.getAlarmEvent().size());
}

TEST(AlarmDetailCreator, KeepsTheFrameUntilTheNextCall)
{
    AlarmDetailCreator creator;
    char* first = nullptr;
    char* second = nullptr;
    int length = 0;
    ASSERT_TRUE(creator.creatAlarmDetail(workedDetail(), &first, length));
    EXPECT_EQ(56, length);
    ASSERT_TRUE(creator.creatAlarmDetail(AlarmDetail(), &second, length));
    EXPECT_EQ(8, length);
    EXPECT_EQ(first, second);
    EXPECT_EQ(emptyFrame, Bytes(second, second + length));
}

TEST(AlarmDetailCreator, CutsDirectionsToAByteAndHundredths)
{
    AlarmDetailTarget target;
    target.setDirection(300.5F);
    target.setSpeed(-1.5F);
    const Bytes frame = frameOf(detailOf(target));
    EXPECT_EQ(44, frame[12]);
    EXPECT_EQ(50, frame[13]);
    EXPECT_EQ(0xFF, frame[14]);
    EXPECT_EQ(0xCE, frame[15]);
    AlarmDetail detail;
    ASSERT_TRUE(parses(frame, detail));
    EXPECT_EQ(44.5F, detail.getAlarmTarget()[0].getDirection());
    EXPECT_EQ(257.06F, detail.getAlarmTarget()[0].getSpeed());
}

TEST(AlarmDetailCreator, LosesAHundredthJustBelowADecimal)
{
    AlarmDetailTarget target;
    target.setDirection(1.05F);
    const Bytes frame = frameOf(detailOf(target));
    EXPECT_EQ(1, frame[12]);
    EXPECT_EQ(4, frame[13]);
}

TEST(AlarmDetailCreator, CutsCornersToAByte)
{
    AlarmDetailTarget target;
    target.setTargetArea(area(250, 6, 10, 40));
    const Bytes frame = frameOf(detailOf(target));
    EXPECT_EQ(250, frame[18]);
    EXPECT_EQ(4, frame[20]);
    EXPECT_EQ(4, frame[22]);
    EXPECT_EQ(250, frame[24]);
    AlarmDetail detail;
    ASSERT_TRUE(parses(frame, detail));
    EXPECT_EQ(-246, detail.getAlarmTarget()[0].getTargetArea().getWidth());
    EXPECT_EQ(40, detail.getAlarmTarget()[0].getTargetArea().getHigh());
}

TEST(AlarmDetailCreator, AddsCornersWithoutOverflow)
{
    const int most = std::numeric_limits<int>::max();
    AlarmDetailTarget target;
    target.setTargetArea(area(most, -most - 1, most, -1));
    const Bytes frame = frameOf(detailOf(target));
    EXPECT_EQ(0xFF, frame[18]);
    EXPECT_EQ(0x00, frame[19]);
    EXPECT_EQ(0xFE, frame[22]);
    EXPECT_EQ(0xFF, frame[23]);
}

TEST(AlarmDetailCreator, CutsPointsToAByte)
{
    for (const auto& each : {std::make_pair(-3.0F, 0), std::make_pair(256.0F, 0), std::make_pair(12.9F, 12)})
    {
        AlarmDetailTarget target;
        target.setPoint(ZTPoint(each.first, 1));
        const Bytes frame = frameOf(detailOf(target));
        EXPECT_EQ(each.second, frame[16]) << each.first;
        AlarmDetail detail;
        ASSERT_TRUE(parses(frame, detail));
        EXPECT_EQ(static_cast<float>(each.second), detail.getAlarmTarget()[0].getPoint().getX());
    }
}

TEST(AlarmDetailCreator, TakesTheNearestNumberForWhatHasNone)
{
    using Limits = std::numeric_limits<float>;
    AlarmDetailTarget target;
    target.setDirection(Limits::infinity());
    target.setSpeed(-Limits::infinity());
    target.setPoint(ZTPoint(5e9F, Limits::quiet_NaN()));
    target.setTraject(ZTPoint(Limits::infinity(), -Limits::infinity()));
    Bytes frame = frameOf(detailOf(target));
    EXPECT_EQ(Bytes({0xFF, 47, 0x00, 0xD0, 0xFF, 0x00}), Bytes(frame.begin() + 12, frame.begin() + 18));
    EXPECT_EQ(Bytes({1, 0xFF, 0x00}), Bytes(frame.begin() + 26, frame.begin() + 29));

    target.setDirection(Limits::quiet_NaN());
    target.setSpeed(3e7F); // a hundred times that is out of range
    frame = frameOf(detailOf(target));
    EXPECT_EQ(Bytes({0, 0, 0x80, 47}), Bytes(frame.begin() + 12, frame.begin() + 16));
}

TEST(AlarmDetailCreator, BringsPointsAndTargetsFromEventToEvent)
{
    AlarmDetail detail;
    for (int id = 1; id <= 3; ++id)
    {
        AlarmDetailEvent event;
        event.setID(id);
        event.setAlarmArea(ZTPoint(static_cast<float>(id), 0));
        event.setRelatedTargetID(id * 10);
        detail.setAlarmEvent(event);
    }
    AlarmDetail read;
    ASSERT_TRUE(parses(frameOf(detail), read));
    ASSERT_EQ(3U, read.getAlarmEvent().size());
    EXPECT_EQ(std::vector<int>({10}), read.getAlarmEvent()[0].getRelatedTargetIDList());
    EXPECT_EQ(std::vector<int>({10, 20}), read.getAlarmEvent()[1].getRelatedTargetIDList());
    EXPECT_EQ(std::vector<int>({10, 20, 30}), read.getAlarmEvent()[2].getRelatedTargetIDList());
    expectPoints({ZTPoint(1, 0)}, read.getAlarmEvent()[0].getAlarmArea().getVecPoints());
    expectPoints({ZTPoint(1, 0), ZTPoint(2, 0), ZTPoint(3, 0)}, read.getAlarmEvent()[2].getAlarmArea().getVecPoints());
    EXPECT_EQ(3, read.getAlarmEvent()[2].getID());
}

TEST(AlarmDetailCreator, AgreesWithAnotherEncoderAndDecoder)
{
    Details details;
    for (int round = 0; round < 2000; ++round)
    {
        const AlarmDetail detail = details.next();
        ASSERT_LE(sizeOf(detail), 2048U);
        const Bytes frame = frameOf(detail);
        ASSERT_EQ(encoded(detail), frame) << round;
        AlarmDetail read;
        ASSERT_TRUE(parses(frame, read)) << round;
        expectDetail(decoded(frame), read);
    }
}

TEST(AlarmDetailCreator, RefusesADetailThatDoesNotFit)
{
    AlarmDetailEvent event;
    AlarmDetail detail;
    while (sizeOf(detail) + 11 + 1020 <= 2048)
    {
        event.getRelatedTargetIDList().assign(255, 1);
        detail.setAlarmEvent(event);
    }
    event.getRelatedTargetIDList().clear();
    detail.setAlarmEvent(event);
    while (sizeOf(detail) + 4 <= 2048)
        detail.getAlarmEvent()[1].setRelatedTargetID(1);
    while (sizeOf(detail) + 2 <= 2048)
        detail.getAlarmEvent()[1].setAlarmArea(ZTPoint(1, 1));

    // Blocks with an odd number of bytes: an even number of them cannot fill the buffer to the last.
    ASSERT_GE(sizeOf(detail), 2047U);
    AlarmDetail read;
    EXPECT_TRUE(parses(frameOf(detail), read));

    detail.getAlarmEvent()[1].setAlarmArea(ZTPoint(1, 1));
    AlarmDetailCreator creator;
    char outside = 0;
    char* frame = &outside;
    int length = 77;
    EXPECT_FALSE(creator.creatAlarmDetail(detail, &frame, length));
    EXPECT_EQ(&outside, frame);
    EXPECT_EQ(77, length);
    EXPECT_FALSE(creator.creatAlarmDetail(AlarmDetail(), nullptr, length));
    EXPECT_EQ(77, length);
}

TEST(AlarmDetailCreator, FillsTheBufferToItsLastByte)
{
    AlarmDetail detail;
    AlarmDetailTarget target;
    target.setTraject(ZTPoint(1, 2));
    for (int count = 0; count < 3; ++count)
        detail.setAlarmTarget(target);
    while (sizeOf(detail) + 23 <= 2048)
        detail.setAlarmTarget(AlarmDetailTarget());
    if ((2048 - sizeOf(detail)) % 2 != 0) // one event makes the rest even
    {
        detail.getAlarmTarget().pop_back();
        detail.setAlarmEvent(AlarmDetailEvent());
    }
    while (sizeOf(detail) < 2048)
        detail.getAlarmTarget()[0].setTraject(ZTPoint(3, 4));
    ASSERT_EQ(2048U, sizeOf(detail));
    const Bytes frame = frameOf(detail);
    EXPECT_EQ(2048U, frame.size());
    AlarmDetail read;
    ASSERT_TRUE(parses(frame, read));
    expectDetail(detail, read);
}

// Of a list of more than 255 elements the count keeps the low 8 bits.
TEST(AlarmDetailCreator, WritesMoreThanTheCountHolds)
{
    AlarmDetailTarget target;
    for (int count = 0; count < 256; ++count)
        target.setTraject(ZTPoint(1, 1));
    const Bytes frame = frameOf(detailOf(target));
    EXPECT_EQ(8U + 23 + 512, frame.size());
    EXPECT_EQ(0, frame[26]);
    expectRefused(frame);
}

TEST(AlarmDetailCreator, RefusesOtherMarks)
{
    for (const std::size_t offset : {std::size_t{0}, std::size_t{1}, workedFrame.size() - 2, workedFrame.size() - 1})
    {
        Bytes frame = workedFrame;
        ++frame[offset];
        if (offset == 1) ++frame[frame.size() - 2]; // the sum holds, so that it is the version that is refused
        expectRefused(frame);
    }
    for (const std::size_t offset : {5, 31, 33, 53}) // the marks of the blocks
    {
        Bytes payload(workedFrame.begin() + 4, workedFrame.end() - 2);
        ++payload[offset - 4];
        expectRefused(framed(payload));
    }
}

TEST(AlarmDetailCreator, TakesAnIndexUpToTheCount)
{
    for (const std::size_t offset : {2, 30}) // of the target, and of the event
    {
        Bytes payload(workedFrame.begin() + 4, workedFrame.end() - 2);
        payload[offset] = 1;
        AlarmDetail detail;
        EXPECT_TRUE(parses(framed(payload), detail));
        expectDetail(workedDetail(), detail);
        payload[offset] = 2;
        expectRefused(framed(payload));
    }
}

TEST(AlarmDetailCreator, RefusesANegativeLength)
{
    for (const unsigned length : {0x8000U, 0xFFFBU, 0xFFFCU, 0xFFFDU, 0xFFFEU, 0xFFFFU})
    {
        Bytes frame = workedFrame;
        frame[2] = static_cast<unsigned char>(length >> 8);
        frame[3] = static_cast<unsigned char>(length);
        expectRefused(frame);
    }
}

TEST(AlarmDetailCreator, RefusesALengthOfNothing)
{
    expectRefused({0xFE, 0x01, 0x00, 0x00, 0x01, 0xFF});
}

TEST(AlarmDetailCreator, RefusesBlocksThatEndElsewhere)
{
    Bytes payload(workedFrame.begin() + 4, workedFrame.end() - 2);
    payload.push_back(0);
    expectRefused(framed(payload)); // a byte behind the last block
    payload.resize(payload.size() - 2);
    expectRefused(framed(payload)); // the last mark where the checksum belongs
}

// The last mark of the targets stands where the checksum belongs.
TEST(AlarmDetailCreator, TakesTargetsThatRunOverTheChecksum)
{
    Bytes payload(workedFrame.begin() + 4, workedFrame.begin() + 32);
    ASSERT_EQ(0xFB, payload.back());
    payload.pop_back();
    Bytes frame = framed(payload);
    // The ID makes the sum come out as the mark.
    frame[10] = static_cast<unsigned char>(frame[10] + 0xFB - frame[frame.size() - 2]);
    frame[frame.size() - 2] = 0xFB;
    AlarmDetail detail;
    ASSERT_TRUE(parses(frame, detail));
    EXPECT_EQ(1U, detail.getAlarmTarget().size());
    EXPECT_EQ(0U, detail.getAlarmEvent().size());
}

// No count makes the reader leave the frame: the sanitizer watches.
TEST(AlarmDetailCreator, StaysInsideTheFrame)
{
    for (std::size_t offset = 0; offset < workedFrame.size() - 6; ++offset)
    {
        Bytes payload(workedFrame.begin() + 4, workedFrame.end() - 2);
        payload[offset] = 0xFF;
        AlarmDetail detail;
        const bool accepted = parses(framed(payload), detail);
        EXPECT_EQ(accepted ? 1U : 0U, detail.getAlarmTarget().size()) << offset;
    }
    for (std::size_t size = 0; size < workedFrame.size() - 6; ++size)
        expectRefused(
            framed(Bytes(workedFrame.begin() + 4, workedFrame.begin() + 4 + static_cast<std::ptrdiff_t>(size))));
}

TEST(AlarmDetailCreator, AgreesWithAnotherDecoderOnFramesThatWereChanged)
{
    const Bytes values = {0x00, 0x01, 0x02, 0x03, 0x7F, 0x80, 0xFA, 0xFB, 0xFC, 0xFD, 0xFE, 0xFF};
    std::mt19937 engine(7);
    Details details;
    int accepted = 0;
    for (int round = 0; round < 5000; ++round)
    {
        const Bytes frame = frameOf(details.next());
        Bytes payload(frame.begin() + 4, frame.end() - 2);
        for (unsigned change = 0; change < 3; ++change)
        {
            const auto place = payload.begin() + static_cast<std::ptrdiff_t>(engine() % payload.size());
            const unsigned char value = values[engine() % values.size()];
            switch (engine() % 4)
            {
            case 0:
                *place = value;
                break;
            case 1:
                payload.insert(place, value);
                break;
            case 2:
                payload.erase(place);
                break;
            default:
                break;
            }
            if (payload.empty()) payload.push_back(value);
        }
        const Bytes changed = framed(payload);
        AlarmDetail detail;
        const bool whole = isWhole(changed);
        ASSERT_EQ(whole, parses(changed, detail)) << round;
        expectDetail(whole ? decoded(changed) : AlarmDetail(), detail);
        accepted += whole ? 1 : 0;
    }
    EXPECT_LT(250, accepted);
    EXPECT_GT(4750, accepted);
}

TEST(AlarmDetailCreator, RefusesAFrameLongerThanWhatWasReceived)
{
    AlarmDetail detail;
    for (std::size_t size = 0; size < workedFrame.size(); ++size)
        EXPECT_FALSE(
            parsesReceived(Bytes(workedFrame.begin(), workedFrame.begin() + static_cast<std::ptrdiff_t>(size)), detail))
            << size;
    expectDetail(AlarmDetail(), detail);
    EXPECT_FALSE(AlarmDetailCreator().parseAlarmDetail(reinterpret_cast<const char*>(workedFrame.data()), -1, detail));

    ASSERT_TRUE(parsesReceived(workedFrame, detail));
    expectDetail(workedDetail(), detail);
    Bytes more = workedFrame;
    more.push_back(0xFE);
    EXPECT_TRUE(parsesReceived(more, detail));
    EXPECT_EQ(2U, detail.getAlarmTarget().size());
}

TEST(AlarmDetailCreator, RefusesNoFrame)
{
    AlarmDetail detail;
    EXPECT_FALSE(AlarmDetailCreator().parseAlarmDetail(nullptr, detail));
    EXPECT_FALSE(AlarmDetailCreator().parseAlarmDetail(nullptr, 8, detail));
}

TEST(AlarmDetailCreator, ReadsBlocksFromTheirCountOn)
{
    std::vector<AlarmDetailTarget> targets(1);
    std::vector<AlarmDetailEvent> events(1);
    const AlarmDetailCreator creator;
    EXPECT_EQ(28, creator.getTarget(&workedFrame[4], targets));
    ASSERT_EQ(2U, targets.size());
    expectTarget(workedTarget(), targets[1]);
    EXPECT_EQ(22, creator.getEvent(&workedFrame[32], events));
    ASSERT_EQ(2U, events.size());
    expectEvent(workedEvent(), events[1]);

    const unsigned char none = 0;
    EXPECT_EQ(1, creator.getTarget(&none, targets));
    EXPECT_EQ(1, creator.getEvent(&none, events));
    EXPECT_EQ(2U, targets.size());
}

TEST(AlarmDetailCreator, KeepsTheBlocksAheadOfABadOne)
{
    Bytes blocks(workedFrame.begin() + 4, workedFrame.begin() + 32);
    blocks[0] = 2; // and what follows is no target
    blocks.insert(blocks.end(), 30, 0);
    std::vector<AlarmDetailTarget> targets;
    EXPECT_EQ(-1, AlarmDetailCreator().getTarget(blocks.data(), targets));
    EXPECT_EQ(1U, targets.size());

    blocks.assign(workedFrame.begin() + 32, workedFrame.begin() + 54);
    blocks[0] = 2;
    blocks.insert(blocks.end(), 30, 0);
    std::vector<AlarmDetailEvent> events;
    EXPECT_EQ(-1, AlarmDetailCreator().getEvent(blocks.data(), events));
    EXPECT_EQ(1U, events.size());
}

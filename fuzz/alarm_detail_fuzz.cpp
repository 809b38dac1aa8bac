// No frame leads the reader out of its bytes, and what is read of a frame can be written and read again, if it fits.

#include "alarm/AlarmDetailCreator.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace
{

/// Gives @p frame the length and the checksum that fit it: few random frames would get past them.
void complete(std::string& frame)
{
    const std::size_t length = frame.size() - 6;
    frame[0] = '\xFE';
    frame[1] = 1;
    frame[2] = static_cast<char>(length >> 8);
    frame[3] = static_cast<char>(length);
    unsigned sum = 0;
    for (std::size_t offset = 1; offset < frame.size() - 2; ++offset)
        sum += static_cast<unsigned char>(frame[offset]);
    frame[frame.size() - 2] = static_cast<char>(sum);
    frame[frame.size() - 1] = '\xFF';
}

/// Whether no list is longer than its count can tell. What events bring along from those before them may well be.
bool canBeCounted(const AlarmDetail& detail)
{
    const std::size_t most = 255;
    for (const AlarmDetailTarget& target : detail.getAlarmTarget())
        if (target.getTraject().size() > most) return false;
    for (const AlarmDetailEvent& event : detail.getAlarmEvent())
        if (event.getAlarmArea().getVecPoints().size() > most || event.getRelatedTargetIDList().size() > most)
            return false;
    return detail.getAlarmTarget().size() <= most && detail.getAlarmEvent().size() <= most;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    AlarmDetailCreator creator;
    std::string frame(reinterpret_cast<const char*>(data), size);
    AlarmDetail detail;
    creator.parseAlarmDetail(frame.data(), static_cast<int>(frame.size()), detail);
    if (frame.size() < 6) return 0;

    complete(frame);
    char* written = nullptr;
    int length = 0;
    if (creator.parseAlarmDetail(frame.data(), static_cast<int>(frame.size()), detail) &&
        creator.creatAlarmDetail(detail, &written, length))
    {
        AlarmDetail again;
        if (canBeCounted(detail) && !creator.parseAlarmDetail(written, length, again)) std::abort();
    }
    return 0;
}

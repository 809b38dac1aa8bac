#pragma once

#include "domain/AlarmRecords.h"

#include <memory>
#include <vector>

/// The detail of an analysis alarm as a binary frame, and back.
///
/// A frame is FE 01, the number of payload bytes (16 bits), the payload, the sum of all bytes between the first and
/// itself (8 bits), and FF. The payload is the number of targets, the targets, the number of events and the events; all
/// numbers stand with their high byte first. What is larger than its place loses its high bits without a word.
///
/// One creator belongs to one thread at a time.
class AlarmDetailCreator
{
public:
    AlarmDetailCreator();
    ~AlarmDetailCreator();
    AlarmDetailCreator(const AlarmDetailCreator&) = delete;
    AlarmDetailCreator& operator=(const AlarmDetailCreator&) = delete;

    /// Writes @p detail as a frame of @p length bytes. The frame belongs to the creator, and holds until its next call.
    /// False, with both outputs as they were, if the frame would take more than 2048 bytes.
    bool creatAlarmDetail(const AlarmDetail& detail, char** frame, int& length);

    /// Reads a frame and appends what it holds to @p detail. False, with @p detail as it was, if it is no such frame.
    ///
    /// Of several events, each one after the first is read with the points and the related targets of those before it
    /// ahead of its own.
    ///
    /// The length stands in the frame itself: there must be as many bytes behind @p frame as it says, and 6. Nothing
    /// behind them is read. Where the frame comes from a network, give the number of bytes.
    bool parseAlarmDetail(const char* frame, AlarmDetail& detail) const;
    /// The same for @p received bytes: false if the frame is longer.
    bool parseAlarmDetail(const char* frame, int received, AlarmDetail& detail) const;

    /// Reads targets, or events, from their number on, and appends them. The result is the number of bytes read, or -1
    /// behind what was understood. Nothing tells them where the data end: they are for data that are known to be whole.
    /// @{
    int getTarget(const unsigned char* data, std::vector<AlarmDetailTarget>& targets) const;
    int getEvent(const unsigned char* data, std::vector<AlarmDetailEvent>& events) const;
    /// @}

private:
    std::unique_ptr<unsigned char[]> buffer_;
};

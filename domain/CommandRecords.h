#pragma once

/// @file
/// The records of the commands.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

/// A receiver of a playback that failed.
struct PlayException
{
    int consumerId = 0; ///< number of the receiver
    int errorNO = 0;    ///< what failed, as the device numbers it
};

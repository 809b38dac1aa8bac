#pragma once

#include "domain/SnapshotRecords.h"
#include "tests/record/RecordSample.h"

/// A picture with a distinct value in every field.
SnapshotFile samplePicture();

/// A picture that holds nothing but its device and camera, and the name that these give.
SnapshotFile emptyPicture(const std::string& deviceId, const std::string& deviceIp, int cameraId);

void expectPicture(const SnapshotFile& expected, const SnapshotFile& file);

/// A stretch of pictures with a distinct value in every field, except that its alarm has no name.
SnapshotFileEx sampleStretch();

/// A stretch that holds nothing but its device and camera.
SnapshotFileEx emptyStretch(const std::string& deviceId, const std::string& deviceIp, int cameraId);

void expectStretch(const SnapshotFileEx& expected, const SnapshotFileEx& file);

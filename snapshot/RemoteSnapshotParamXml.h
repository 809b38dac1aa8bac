#pragma once

#include "core/IDomainXml.h"
#include "domain/SnapshotRecords.h"

#include <string>

/// Asks a remote camera for a picture: the "RemoteSnapshotParam" document.
///
/// A missing property resets its field.
class RemoteSnapshotParamXml : public IDomainXml
{
public:
    RemoteSnapshotParamXml();
    ~RemoteSnapshotParamXml() override;

    bool createXmlString(const RemoteSnapshotParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, RemoteSnapshotParam& param) const;
};

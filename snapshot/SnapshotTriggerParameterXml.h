#pragma once

#include "core/IDomainXml.h"
#include "domain/SnapshotRecords.h"

#include <string>
#include <tinyxml.h>

/// How a camera takes pictures when it is triggered: the "SnapshotTriggerParameter" document.
///
/// A missing property resets its field; the inputs replace those that the record has. The four values of traffic
/// cameras, from the shutter time on, are neither written nor touched.
class SnapshotTriggerParameterXml : public IDomainXml
{
public:
    SnapshotTriggerParameterXml();
    ~SnapshotTriggerParameterXml() override;

    bool createXmlString(const SnapshotTriggerParameter& trigger, std::string& text) const;
    bool parseXmlString(const std::string& text, SnapshotTriggerParameter& trigger) const;

    /// @name Elements
    /// For the documents that hold a trigger.
    /// @{
    static TiXmlElement& writeElement(TiXmlNode& parent, const SnapshotTriggerParameter& trigger);
    static bool readElement(const TiXmlElement& element, SnapshotTriggerParameter& trigger);
    /// Writes into an element that stands already.
    static void fillElement(TiXmlElement& element, const SnapshotTriggerParameter& trigger);
    /// @}
};

#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

/// One way of processing sound, inside other documents under a name that they choose.
///
/// Unlike others, both operations stop at the first property that fails: they print a line and give false. The fields
/// before a missing property are set then.
class AudioProcessParamXml : public IDomainXml
{
public:
    AudioProcessParamXml();
    ~AudioProcessParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AudioProcessParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AudioProcessParam& param) const;
    /// @}
};

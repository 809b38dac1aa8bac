#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <vector>

/// The modules that process a camera's sound: the "AudioProcessList" document.
///
/// A missing "ModuleId" gives 0 and a missing "SupportFlag" false. What a module does are its children named
/// "ProcessParam"; one that lacks an attribute ends the reading with a line and false, with the modules before it in
/// the list.
class AudioProcessInfoXml : public IDomainXml
{
public:
    AudioProcessInfoXml();
    ~AudioProcessInfoXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const std::vector<AudioProcessInfo>& infos, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<AudioProcessInfo>& infos) const;
    bool createXmlString(const std::vector<AudioProcessInfo>& infos, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<AudioProcessInfo>& infos) const;
    /// @}
};

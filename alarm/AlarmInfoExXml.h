#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// Alarms, and the devices that raised them: the "AlarmInfoExList" document.
///
/// The reader appends to the list. What an item lacks is 0 or empty.
class AlarmInfoExXml : private IDomainXml
{
public:
    AlarmInfoExXml();
    ~AlarmInfoExXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmInfoExList(const std::vector<AlarmInfoEx>& infos) { infos_ = infos; }
    std::vector<AlarmInfoEx>& getAlarmInfoExList() { return infos_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<AlarmInfoEx>& infos);
    static bool readElement(const TiXmlElement& element, std::vector<AlarmInfoEx>& infos);
    /// @}

private:
    std::vector<AlarmInfoEx> infos_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};

#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// One alarm: the "AlarmData" document.
///
/// A missing attribute resets its field, in both forms; the node form prints a line for it. A time before 0 goes out
/// with a minus sign in the document form and as a number of twenty digits in the node form; each form reads its own
/// back.
class AlarmDataXml : public IDomainXml
{
public:
    AlarmDataXml();
    ~AlarmDataXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmData(const AlarmData& data) { data_ = data; }
    AlarmData& getAlarmData() { return data_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmData& data);
    static bool readElement(const TiXmlElement& element, AlarmData& data);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AlarmData& data, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmData& data) const;
    bool createXmlString(const AlarmData& data, std::string& text) const;
    bool parseXmlString(const std::string& text, AlarmData& data) const;
    /// @}

private:
    AlarmData data_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};

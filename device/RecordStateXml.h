#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// Which cameras record: the "RecordStateList" document.
///
/// The reader appends to the list and passes over items of other names. A missing attribute gives 0 or an empty text.
class RecordStateXml : public IDomainXml
{
public:
    RecordStateXml();
    ~RecordStateXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRecordStateList(const std::vector<RecordState>& states) { states_ = states; }
    std::vector<RecordState>& getRecordStateList() { return states_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<RecordState>& states);
    static bool readElement(const TiXmlElement& element, std::vector<RecordState>& states);
    /// @}

private:
    std::vector<RecordState> states_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};

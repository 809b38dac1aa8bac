#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// What cameras have recorded: the "RecordQueryResultList" document, the answer to a "RecordQueryCondition".
///
/// The reader appends to the list, and no item fails. What an item lacks is 0, empty or false; a camera has the
/// stretches of all its "RecordTimeSegmentList".
class RecordQueryResultXml : public IDomainXml
{
public:
    RecordQueryResultXml();
    ~RecordQueryResultXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRecordQueryResultList(const std::vector<RecordQueryResult>& results) { results_ = results; }
    std::vector<RecordQueryResult>& getRecordQueryResultList() { return results_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<RecordQueryResult>& results);
    static bool readElement(const TiXmlElement& element, std::vector<RecordQueryResult>& results);
    /// @}

private:
    std::vector<RecordQueryResult> results_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};

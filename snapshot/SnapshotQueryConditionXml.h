#pragma once

#include "core/IDomainXml.h"
#include "domain/SnapshotRecords.h"

#include <string>
#include <tinyxml.h>

/// What stored pictures are searched for: the "SnapshotQueryCondition" document.
///
/// A missing attribute leaves its field, but for "CameraId", which gives 0. A missing "AlarmExTypeList" leaves the
/// kinds of alarm; one that is there replaces them, even by none. The calendar times are written only: the record makes
/// them of the others.
class SnapshotQueryConditionXml : public IDomainXml
{
public:
    SnapshotQueryConditionXml();
    ~SnapshotQueryConditionXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setSnapshotQueryCondition(const SnapshotQueryCondition& condition) { condition_ = condition; }
    SnapshotQueryCondition& getSnapshotQueryCondition() { return condition_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const SnapshotQueryCondition& condition);
    static bool readElement(const TiXmlElement& element, SnapshotQueryCondition& condition);
    /// @}

    /// @name Times as text
    /// The text forms of the document's times. Both are always true.
    /// @{
    bool Int642Str(const long long& value, std::string& text) const;
    /// By way of a `double`: a fraction is cut off, and of more than 53 significant bits the lowest are lost. What is
    /// no number gives 0.
    bool str2Int64(const std::string& text, long long& value) const;
    /// @}

private:
    SnapshotQueryCondition condition_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};

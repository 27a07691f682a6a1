#include "recognition/source_diagnosis.h"

#include "tracking/fault_text.h"

#include <QCoreApplication>
#include <QStringList>

using Level = DiagnosisRemark::Level;
using Topic = DiagnosisRemark::Topic;

namespace {

// Values that are out of range now and then are the source's habit; many of them speak against the edition.
constexpr qint64 OddShare = 20; // one in so many
// From so many of them on, blocks of another edition are no accident.
constexpr qint64 MixedShare = 20;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(StreamDiagnosis)
};

QString blocksText(qint64 blocks)
{
    return blocks == 1 ? Text::tr("1 block") : Text::tr("%1 blocks").arg(countText(blocks));
}

// "CAT021 from 25/11"
QString subject(const SourceFindings &source, const CategoryFindings &category)
{
    return Text::tr("%1 from %2").arg(categoryName(category.category), source.name());
}

bool isMixed(const CategoryFindings &category)
{
    return (category.records - category.editionRecords) * MixedShare >= category.records && category.records > 0;
}

QString evidenceOf(const EditionFindings &edition, qint64 blocks)
{
    QString text = edition.wholeBlocks == blocks ? Text::tr("edition %1 reads all").arg(edition.edition)
        : edition.wholeBlocks == 0
        ? Text::tr("edition %1 reads none").arg(edition.edition)
        : Text::tr("edition %1 reads %2").arg(edition.edition, countText(edition.wholeBlocks));
    if (edition.onlyBlocks > 0) {
        text += edition.onlyBlocks == blocks
            ? Text::tr(", and no other edition reads any")
            : Text::tr("; %1 of these no other edition reads").arg(countText(edition.onlyBlocks));
    }
    if (edition.oddRecords > 0) {
        text += Text::tr(", with implausible values in %1 of %2 records")
                    .arg(countText(edition.oddRecords), countText(edition.records));
    }
    return text;
}

// Which of the editions it is: of categories of which there are several.
DiagnosisRemark editionRemark(const SourceFindings &source, const CategoryFindings &category)
{
    const QString who = subject(source, category);
    if (isMixed(category)) {
        return makeRemark(Level::Wrong, Topic::Edition,
            Text::tr(
                "%1 comes in more than one edition: %2 of %3 records are of edition %4, the others of another one.")
                .arg(who, countText(category.editionRecords), countText(category.records), category.edition),
            editionEvidence(category));
    }
    QStringList equals;
    for (const EditionFindings &other : category.editions.mid(1)) {
        if (doesAsWell(category.editions.first(), other)) {
            equals += other.edition;
        }
    }
    if (!equals.isEmpty()) {
        return makeRemark(Level::Note, Topic::Edition,
            Text::tr("%1 is read in edition %2, but nothing in it tells that from edition %3.")
                .arg(who, category.edition, equals.join(Text::tr(" or "))),
            editionEvidence(category));
    }
    return makeRemark(Level::Fine, Topic::Edition, Text::tr("%1 is of edition %2.").arg(who, category.edition),
        editionEvidence(category));
}

// The one edition of its category that is known. That need not be the edition's fault.
DiagnosisRemark oddRemark(const SourceFindings &source, const CategoryFindings &category)
{
    const EditionFindings &edition = category.editions.first();
    return makeRemark(Level::Note, Topic::Edition,
        Text::tr(
            "In %1 of %2 records of %3 a time, a place or an aircraft identification cannot be right, or bits are set "
            "that edition %4 leaves unused.")
            .arg(
                countText(edition.oddRecords), countText(edition.records), subject(source, category), edition.edition));
}

DiagnosisRemark identificationRemark(const SourceFindings &source, const CategoryFindings &category)
{
    return makeRemark(Level::Note, Topic::Edition,
        Text::tr(
            "In %1 of %2 records of %3 the aircraft identification cannot be right: its callsigns are not to be relied "
            "on.")
            .arg(countText(category.oddIdentifications), countText(category.records), subject(source, category)),
        Text::tr("Blanks stand before or between its characters, as in \"%1\".").arg(category.oddIdentification));
}

// Beyond those that another remark accounts for.
bool isOdd(const CategoryFindings &category)
{
    const EditionFindings &edition = category.editions.first();
    return (edition.oddRecords - category.oddIdentifications) * OddShare > edition.records;
}

DiagnosisRemark undecodableRemark(const SourceFindings &source, const CategoryFindings &category)
{
    const QString who = subject(source, category);
    if (!category.hasTable) {
        return makeRemark(Level::Note, Topic::Category,
            Text::tr("%1 is passed over: nothing here reads this category (%2, %3 octets).")
                .arg(who, blocksText(category.undecodableBlocks), countText(category.undecodableOctets)));
    }
    const QString edition = category.edition.isEmpty() && !category.editions.isEmpty()
        ? category.editions.first().edition
        : category.edition;
    const QString sentence = category.records == 0
        ? Text::tr("%1 cannot be decoded: of %2 none fits edition %3, so it is of another edition, or damaged.")
              .arg(who, blocksText(category.undecodableBlocks), edition)
        : Text::tr("%1 of %2 of %3 cannot be decoded in edition %4: damaged on the way, or of another edition.")
              .arg(countText(category.undecodableBlocks), blocksText(category.blocks), who, edition);
    return makeRemark(Level::Wrong, Topic::Damage, sentence,
        Text::tr("The first fault: %1, at octet %2 of the block.")
            .arg(faultText(category.fault))
            .arg(category.faultOffset));
}

Diagnosis diagnose(const SourceFindings &source, const CategoryFindings &category)
{
    Diagnosis remarks;
    if (category.undecodableBlocks > 0) {
        remarks += undecodableRemark(source, category);
    }
    if (category.editions.size() > 1 && category.records > 0) {
        remarks += editionRemark(source, category);
    } else if (!category.editions.isEmpty() && isOdd(category)) {
        remarks += oddRemark(source, category);
    }
    if (category.oddIdentifications * OddShare > category.records) {
        remarks += identificationRemark(source, category);
    }
    for (DiagnosisRemark &remark : remarks) {
        remark.source = source.identified ? source.name() : QString();
        remark.category = category.category;
    }
    return remarks;
}

} // namespace

bool doesAsWell(const EditionFindings &best, const EditionFindings &other)
{
    return other.wholeBlocks >= best.wholeBlocks && other.oddRecords <= best.oddRecords;
}

QString editionEvidence(const CategoryFindings &category)
{
    QStringList parts;
    for (const EditionFindings &edition : category.editions) {
        parts += evidenceOf(edition, category.judgedBlocks);
    }
    const QString looked = category.judgedBlocks == 1
        ? Text::tr("Of 1 block that was looked at")
        : Text::tr("Of %1 blocks that were looked at").arg(countText(category.judgedBlocks));
    return looked + QStringLiteral(": ") + parts.join(QStringLiteral("; ")) + u'.';
}

Diagnosis diagnose(const SourceFindings &source)
{
    Diagnosis remarks;
    for (const CategoryFindings &category : source.categories) {
        remarks += diagnose(source, category);
    }
    return remarks;
}

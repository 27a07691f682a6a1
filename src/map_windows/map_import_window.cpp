#include "map_windows/map_import_window.h"

#include "maps/map_file.h"
#include "widgets/field_form.h"
#include "widgets/file_edit.h"
#include "widgets/map_symbol_items.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// Splits at commas and strips blanks.
QStringList namesIn(const QString &text)
{
    QStringList names;
    for (const QString &name : text.split(u',')) {
        if (!name.trimmed().isEmpty()) {
            names.append(name.trimmed());
        }
    }
    return names;
}

QLineEdit *makeNamesEdit(const QStringList &proposal, const QString &name)
{
    auto *edit = new QLineEdit;
    edit->setObjectName(name);
    edit->setPlaceholderText(proposal.join(QStringLiteral(", ")));
    edit->setToolTip(MapImportWindow::tr("Names with commas between them; the first that a feature has counts."));
    return edit;
}

QStringList enteredOr(const QLineEdit &edit, const QStringList &proposal)
{
    const QStringList entered = namesIn(edit.text());
    return entered.isEmpty() ? proposal : entered;
}

void setAsTheFileSays(QComboBox *box)
{
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCurrentIndex(-1);
    box->lineEdit()->setPlaceholderText(MapImportWindow::tr("as the file says"));
    box->lineEdit()->setClearButtonEnabled(true);
}

} // namespace

MapImportWindow::MapImportWindow(const QString &source, const Proposals &proposals, QWidget *parent)
    : GeometryDialog(QStringLiteral("MapImportWindow"), parent), m_source(source), m_folder(proposals.folder),
      m_replaceQuestion([this](const QString &file) { return askToReplace(file); }), m_form(new FieldForm(this))
{
    setWindowTitle(tr("Import %1").arg(QFileInfo(source).fileName()));
    makeFields(proposals);
    addMeaningRows();
    addContentRows();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_form);
    layout->addStretch(1);
    addButtons();
    resize(640, sizeHint().height());
}

void MapImportWindow::makeFields(const Proposals &proposals)
{
    m_target = new FileEdit(tr("Import To"), tr("Maps (*.map *.xml)"));
    m_target->setObjectName(QStringLiteral("target"));
    m_target->setSaving(true);
    m_target->setBaseDir(m_folder);
    const QString name = QFileInfo(m_source).completeBaseName() + QStringLiteral(".map");
    m_target->setPath(QDir(m_folder).absoluteFilePath(name));
    m_class = new QComboBox;
    m_class->setObjectName(QStringLiteral("className"));
    m_class->addItems(proposals.classes);
    m_symbol = new QComboBox;
    m_symbol->setObjectName(QStringLiteral("symbolType"));
    addMapSymbolItems(m_symbol);
    for (QComboBox *box : {m_class, m_symbol}) {
        setAsTheFileSays(box);
    }
    const MapImport::Options proposal;
    m_nameProperties = makeNamesEdit(proposal.nameProperties, QStringLiteral("nameProperties"));
    m_captionProperties = makeNamesEdit(proposal.captionProperties, QStringLiteral("captionProperties"));
    m_layers = new QLineEdit;
    m_layers->setObjectName(QStringLiteral("layers"));
    m_layers->setPlaceholderText(tr("all"));
    m_layers->setToolTip(tr("Names with commas between them"));
}

// Rows about the meaning of the features: class, names, symbols.
void MapImportWindow::addMeaningRows()
{
    m_form->addField(tr("Map &file:"), m_target);
    m_form->addHeading(tr("Features"));
    m_form->addField(tr("&Class:"), m_class);
    m_form->addField(tr("&Name from property:"), m_nameProperties);
    m_form->addField(tr("Ca&ption from property:"), m_captionProperties);
    m_form->addField(tr("&Symbol of points:"), m_symbol);
    m_form->addField(tr("&Layers:"), m_layers);
}

void MapImportWindow::addContentRows()
{
    const MapImport::Options proposal;
    const auto addBox = [this](const QString &text, bool checked, const QString &name) {
        auto *box = new QCheckBox(text);
        box->setObjectName(name);
        box->setChecked(checked);
        m_form->addField(box);
        return box;
    };
    m_symbols = addBox(tr("Points become s&ymbols"), proposal.pointSymbols, QStringLiteral("symbols"));
    m_labels = addBox(tr("Points and airspaces get la&bels"), proposal.pointLabels, QStringLiteral("labels"));
    m_areas = addBox(tr("Fill &areas"), proposal.fillAreas, QStringLiteral("areas"));
    m_airspaces = addBox(tr("&Recognise airspaces"), proposal.airspaces, QStringLiteral("airspaces"));
    m_epsg = new QSpinBox;
    m_epsg->setObjectName(QStringLiteral("epsg"));
    m_epsg->setRange(0, 999999);
    m_epsg->setSpecialValueText(tr("as the file says"));
    m_epsg->setToolTip(tr("Reference system of the coordinates, for files such as drawings that name none"));
    m_tolerance = new QDoubleSpinBox;
    m_tolerance->setObjectName(QStringLiteral("tolerance"));
    m_tolerance->setRange(0.0, 100000.0);
    m_tolerance->setDecimals(1);
    m_tolerance->setSuffix(tr(" m"));
    m_tolerance->setSpecialValueText(tr("keep all points"));
    m_tolerance->setToolTip(tr("Lines and areas are simplified as long as they move by no more than this"));
    m_form->addHeading(tr("Coordinates"));
    m_form->addField(tr("&EPSG code:"), m_epsg);
    m_form->addField(tr("&Tolerance:"), m_tolerance);
}

void MapImportWindow::addButtons()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, Qt::Horizontal, this);
    QPushButton *import = buttons->addButton(tr("&Import"), QDialogButtonBox::AcceptRole);
    import->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &MapImportWindow::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &MapImportWindow::reject);
    layout()->addWidget(buttons);
}

QString MapImportWindow::target() const
{
    const QString entered = m_target->path();
    if (entered.isEmpty()) {
        return {};
    }
    const QString path = QDir::cleanPath(QDir(m_folder).absoluteFilePath(entered));
    const QFileInfo file(path);
    return file.suffix().isEmpty() && !file.isDir() ? path + QStringLiteral(".map") : path;
}

MapImport::Options MapImportWindow::options() const
{
    MapImport::Options options;
    options.className = m_class->currentText().trimmed();
    options.nameProperties = enteredOr(*m_nameProperties, options.nameProperties);
    options.captionProperties = enteredOr(*m_captionProperties, options.captionProperties);
    options.symbolType = m_symbol->currentText().trimmed();
    options.layers = namesIn(m_layers->text());
    options.pointSymbols = m_symbols->isChecked();
    options.pointLabels = m_labels->isChecked();
    options.fillAreas = m_areas->isChecked();
    options.airspaces = m_airspaces->isChecked();
    options.tolerance = m_tolerance->value();
    options.epsg = m_epsg->value();
    return options;
}

void MapImportWindow::setReplaceQuestion(std::function<bool(const QString &file)> question)
{
    m_replaceQuestion = std::move(question);
}

QString MapImportWindow::targetProblem() const
{
    const QFileInfo file(target());
    if (m_target->path().isEmpty()) {
        return tr("The name of a file is needed.");
    }
    if (file.isDir()) {
        return tr("This is a folder.");
    }
    const MapFile::Format format = MapFile::formatFromFileName(file.fileName());
    return format == MapFile::Map || format == MapFile::Xml ? QString()
                                                            : tr("The name has to end in \".map\" or \".xml\".");
}

bool MapImportWindow::askToReplace(const QString &file)
{
    return QMessageBox::question(this, windowTitle(), tr("Replace \"%1\"?").arg(QDir::toNativeSeparators(file)))
        == QMessageBox::Yes;
}

void MapImportWindow::accept()
{
    const QString file = target();
    if (!m_form->check(m_target, targetProblem()) || (QFileInfo::exists(file) && !m_replaceQuestion(file))) {
        m_target->setFocus();
        return;
    }
    Q_EMIT importRequested(file, options());
    QDialog::accept();
}

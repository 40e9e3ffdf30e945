#include "include/wifiondivo.h"

#include "core/htmlwriter.h"
#include "device/paths.h"
#include "device/reportfiles.h"
#include "device/system.h"
#include "hostbinding.h"
#include "include/2_4Graph.h"
#include "include/2_4GraphCh.h"
#include "include/5Graph.h"
#include "include/5GraphCh.h"
#include "include/scan.h"
#include "include/wifiSSIDhelper.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QMetaType>
#include <QPixmap>
#include <QPointer>
#include <QVBoxLayout>

#include <dirent.h>

namespace wifiondivo {

namespace {

/// An outer tab: its title, and the buttons of the strip while it is current. The tab's index is
/// its row in WifiTabs.
struct WifiTab {
    const char* title;
    bool separatorAfter;
    bool showsScan;
    const qint32* showsArrows; ///< the arrows show while this count is above 0; null: never
};

const WifiTab WifiTabs[] = {
    {QT_TRANSLATE_NOOP("wifiondivo::CWifiondivo", "Scan"), false, true, nullptr},
    {QT_TRANSLATE_NOOP("wifiondivo::CWifiondivo", "2.4Graph"), true, false, &ap2_4},
    {QT_TRANSLATE_NOOP("wifiondivo::CWifiondivo", "2.4GraphCH"), false, false, nullptr},
    {QT_TRANSLATE_NOOP("wifiondivo::CWifiondivo", "5.0GraphCH"), false, false, nullptr},
    {QT_TRANSLATE_NOOP("wifiondivo::CWifiondivo", "5.0Graph"), false, false, &ap5},
};
const int WifiTabCount = sizeof WifiTabs / sizeof WifiTabs[0];

const int ScanTab = 0;

/// The order in which translate() sets the titles.
const int TitleOrder[] = {0, 1, 4, 2, 3};
static_assert(sizeof TitleOrder / sizeof TitleOrder[0] == WifiTabCount, "each tab's title once");

/// A band's part of a report; reported if the band has occupied channels.
struct BandReport {
    qint32 occupiedChannels;
    void (*writeSection)(const CWifiondivo& window, FILE* file);
    QWidget* graph;
    const char* pictureSuffix;
};

const int ReportFontSize = 4;

/// A picture of the whole widget, even if its tab is not shown.
QPixmap pictureOf(QWidget* widget)
{
    QPixmap picture(widget->size());
    picture.fill(Qt::white);
    widget->render(&picture);
    return picture;
}

/// Prints that an identity could not be read; `line` is the source line of the failed call.
void reportUnreadable(int line)
{
    std::printf("### ERROR: FILE:%s\t Func:%s\t%d\n", "source/wifiondivo",
        "html_saveGeneralInfoOfSet", line);
}

} // namespace

CToolbox::CToolbox(QWidget* parent)
    : CWidget(parent)
    , m_pBtnScan(nullptr)
    , m_pBtnRIGHT(nullptr)
    , m_pBtnLEFT(nullptr)
    , m_pBtnUP(nullptr)
    , m_pBtnDOWN(nullptr)
    , m_wifiSSID_UDRL()
{
    qRegisterMetaType<stEXT_WIFI_UDRL>("stEXT_WIFI_UDRL");
    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setAlignment(Qt::AlignHCenter | Qt::AlignTop);

    m_pBtnScan = addButton(tr("Scan"));
    m_pBtnRIGHT = addButton(tr("Right"));
    m_pBtnRIGHT->hide();
    m_pBtnLEFT = addButton(tr("Left"));
    m_pBtnLEFT->hide();
    m_pBtnUP = addButton(tr("Up"));
    m_pBtnUP->hide();
    m_pBtnDOWN = addButton(tr("Down"));
    m_pBtnDOWN->hide();
    layout->addStretch();

    setBorderColor(Qt::white);
    setBorderWidth(1, 0, 0, 0);
    setFixedWidth(kit::toolboxRegion().width());
    setBackgroundColor(kit::pageBackground());

    CPushButton* const buttons[] = {m_pBtnScan, m_pBtnDOWN, m_pBtnUP, m_pBtnLEFT, m_pBtnRIGHT};
    for (CPushButton* button : buttons)
        connect(button, SIGNAL(clicked()), SLOT(onBtnCmd()));
}

CToolbox::~CToolbox() { }

CPushButton* CToolbox::addButton(const QString& text)
{
    CPushButton* const button = new CPushButton(this);
    button->setText(text);
    button->setStyle(CPushButton::StyleGreen, false);
    button->setTextColor(Qt::white);
    static_cast<QVBoxLayout*>(layout())->addWidget(button);
    return button;
}

void CToolbox::translate()
{
    m_pBtnScan->setText(tr("Scan"));
}

void CToolbox::enableBtnScanAp(bool flag)
{
    m_pBtnScan->setEnabled(flag);
    m_pBtnScan->setStyle(flag ? CPushButton::StyleGreen : CPushButton::StyleGray, false);
}

void CToolbox::onWifiboxshow(int index)
{
    static const WifiTab noTab = {"", false, false, nullptr};
    const WifiTab& tab = index >= 0 && index < WifiTabCount ? WifiTabs[index] : noTab;
    const bool arrows = tab.showsArrows && *tab.showsArrows > 0;
    m_pBtnScan->setVisible(tab.showsScan);
    m_pBtnRIGHT->setVisible(arrows);
    m_pBtnLEFT->setVisible(arrows);
    m_pBtnDOWN->setVisible(arrows);
    m_pBtnUP->setVisible(arrows);
}

void CToolbox::onBtnCmd()
{
    const QObject* const button = sender();
    if (button == m_pBtnScan) {
        emit sigWifiScanStart();
        return;
    }
    const struct {
        const QObject* button;
        stEXT_WIFI_UDRL step;
    } steps[] = {
        {m_pBtnUP, {-1, 0}},
        {m_pBtnDOWN, {1, 0}},
        {m_pBtnLEFT, {0, -1}},
        {m_pBtnRIGHT, {0, 1}},
    };
    for (const auto& arrow : steps) {
        if (arrow.button != button)
            continue;
        m_wifiSSID_UDRL = arrow.step;
        emit sigWifiScan2_4UDRL(m_wifiSSID_UDRL);
        update();
    }
}

CWifiondivo::CWifiondivo(QWidget* parent)
    : CWidget(parent)
    , m_pToolbox(nullptr)
    , m_pWifiTab(nullptr)
    , m_p2_4Graph(nullptr)
    , m_p2_4GraphCH(nullptr)
    , m_p5Graph(nullptr)
    , m_p5GraphCH(nullptr)
    , m_pScan(nullptr)
    , m_pScanResult(nullptr)
    , m_pWifiSSIDHelper(nullptr)
    , m_pMsgbox(nullptr)
{
    Wifiondivo_2_4GraphCH::clearSummary();
    Wifiondivo_5GraphCH::clearSummary();
    device::runCommand(device::command(device::RemoveSupplicantConf));
    m_pWifiSSIDHelper = new WifiSSIDHelper;

    const QRect toolboxRegion = kit::toolboxRegion();
    const QRect tabRegion = kit::tabRegion();
    QHBoxLayout* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    m_pWifiTab = new CTabWidget(this);
    m_pWifiTab->setBorderWidth(1);
    m_pWifiTab->setBorderColor(Qt::white);
    QWidget* const pages[] = {crtScanWiget(), m_p2_4Graph = new Wifiondivo_2_4Graph(m_pWifiTab),
        m_p2_4GraphCH = new Wifiondivo_2_4GraphCH(m_pWifiTab),
        m_p5GraphCH = new Wifiondivo_5GraphCH(m_pWifiTab),
        m_p5Graph = new Wifiondivo_5Graph(m_pWifiTab)};
    static_assert(sizeof pages / sizeof pages[0] == WifiTabCount, "a page for each row");
    for (int tab = 0; tab < WifiTabCount; ++tab) {
        m_pWifiTab->addTab(pages[tab], tr(WifiTabs[tab].title));
        if (WifiTabs[tab].separatorAfter)
            m_pWifiTab->addSeparator();
    }
    layout->addWidget(m_pWifiTab);

    m_pToolbox = new CToolbox(this);
    m_pToolbox->setWidth(toolboxRegion.width());
    layout->addWidget(m_pToolbox);
    m_pWifiTab->setFixedSize(tabRegion.width(), tabRegion.height());
    m_pWifiTab->setCurrentIndex(ScanTab);

    qRegisterMetaType<kit::ScanItem>("stWifiScanItem");
    connect(m_pWifiTab, SIGNAL(currentChanged(int)), m_pToolbox, SLOT(onWifiboxshow(int)));
    connect(m_pToolbox, SIGNAL(sigWifiScanStart()), SLOT(scanWifi()));
    connect(m_pToolbox, SIGNAL(sigWifiScan2_4UDRL(stEXT_WIFI_UDRL)), m_p2_4Graph,
        SLOT(markSelectedSSID(const stEXT_WIFI_UDRL&)));
    connect(m_pToolbox, SIGNAL(sigWifiScan2_4UDRL(stEXT_WIFI_UDRL)), m_p5Graph,
        SLOT(markSelectedSSID(const stEXT_WIFI_UDRL&)));
    qRegisterMetaType<stEXT_WIFISCAN_result>("stEXT_WIFISCAN_result");
    qRegisterMetaType<stK510_WIFISCAN_APDATA>("stK510_WIFISCAN_APDATA");
    for (const ScanConnection& to : scanConnections())
        connect(m_pWifiSSIDHelper, to.signal, to.receiver, to.slot);

    for (const char* folder : device::ResultFolders)
        createDir(device::path(folder).c_str());
    setFocusPolicy(Qt::StrongFocus);
}

CWifiondivo::~CWifiondivo()
{
    // The thread runs the scan tool in a shell and cannot be interrupted. Waiting for it prevents a
    // second scan from writing the same output file, and the host from unloading running code.
    m_pWifiSSIDHelper->wait();
    delete m_pWifiSSIDHelper;
    deleteMsgBox();
}

CTabWidget* CWifiondivo::crtScanWiget()
{
    m_pScan = new CTabWidget(nullptr);
    const QSize size = kit::tabPageSize();
    m_pScan->setSize(size.width() + 100, size.height());
    m_pScan->setSelectTabBgColor(kit::selectedTabBackground());
    m_pScan->setReleaseTabBgColor(kit::releasedTabBackground());
    m_pScan->setSelectTabTextColor(kit::selectedTabText());
    m_pScan->setReleaseTabTextColor(kit::releasedTabText());
    m_pScanResult = new CScanResult;
    m_pScan->addTab(m_pScanResult, tr("AP List"));
    m_pScan->setCurrentIndex(0);
    const QRect region = kit::tabRegion();
    m_pScan->setFixedSize(region.width(), region.height());
    return m_pScan;
}

void CWifiondivo::translate()
{
    for (int tab : TitleOrder)
        m_pWifiTab->setTabText(tab, tr(WifiTabs[tab].title));
    m_pScan->setTabText(0, tr("AP List"));
    m_pScanResult->translate();
    m_pToolbox->translate();
    CWidget::translate();
}

void CWifiondivo::scanWifi()
{
    if (!m_pWifiSSIDHelper->isPlugged()) {
        const QPointer<CWifiondivo> self(this); // the host may close the window meanwhile
        popMsgBox(this, tr("Tips"), tr("WIFI device can't be detected!"), QMessageBox::Ok);
        if (self)
            deleteMsgBox();
        return;
    }
    if (!m_pWifiSSIDHelper->isRunning()) {
        m_pToolbox->enableBtnScanAp(false);
        m_pWifiSSIDHelper->holdResult();
        m_pWifiSSIDHelper->start(QThread::InheritPriority);
    }
    m_pWifiTab->setCurrentIndex(ScanTab);
    m_pScan->setCurrentIndex(0);
}

void CWifiondivo::onScanTable(const stEXT_WIFISCAN_result& result)
{
    m_pWifiSSIDHelper->updateHeldResult(result);
}

void CWifiondivo::onScanThreadFinished()
{
    // The next scan may have started before this slot is called.
    if (!m_pWifiSSIDHelper->isRunning())
        m_pWifiSSIDHelper->releaseResult();
}

int CWifiondivo::popMsgBox(QWidget* parent, const QString& title, const QString& text,
    QMessageBox::StandardButtons buttons)
{
    if (!m_pMsgbox) {
        m_pMsgbox = new CMessageBox(nullptr);
        m_pMsgbox->setMsgTextColor(Qt::blue);
        m_pMsgbox->setAlignment(Qt::AlignCenter);
        m_pMsgbox->QWidget::setFixedSize(450, 270);
        m_pMsgbox->setTitleBackgroundColor(Qt::green);
        m_pMsgbox->setButtonText(QMessageBox::Ok, tr("OK"));
    }
    return m_pMsgbox->information(parent, title, text, buttons);
}

void CWifiondivo::deleteMsgBox()
{
    delete m_pMsgbox;
    m_pMsgbox = nullptr;
}

void CWifiondivo::createDir(const char* path)
{
    if (DIR* const folder = opendir(path)) {
        closedir(folder);
        return;
    }
    device::runCommand(device::makeFolder(path));
}

QString CWifiondivo::getKeyboard(const QString& title, const QString& text)
{
    return kit::askForText(title, text, this);
}

void CWifiondivo::keyPressEvent(QKeyEvent* event)
{
    QWidget::keyPressEvent(event);
    qDebug("wifiondivo: key %#x", static_cast<unsigned int>(event->key()));
    if (event->key() != Qt::Key_F1)
        return;
    // QWidget has ignored the event, so it would go on to the host's widgets around this one. A
    // host that handles F1 itself, or passes keys to the utility, would then save a second time.
    event->accept();
    saveTestResult();
}

void CWifiondivo::saveTestResult()
{
    // The C locale: a file name has ASCII digits in every locale.
    const QString now =
        QLocale::c().toString(QDateTime::currentDateTime(), QLatin1String("yyyyMMdd-hhmmss"));
    const QPointer<CWifiondivo> self(this); // the host may close the window meanwhile
    // A null text means that the user cancelled, so nothing is saved. An empty text is a confirmed
    // name: the report's file is ".html".
    const QString entered = getKeyboard(tr("Save Test Result"), now);
    if (!self || entered.isNull())
        return;
    if (!m_pWifiSSIDHelper->isRunning())
        deliverScanSignals();

    const BandReport bands[] = {
        {ap2_4,
            [](const CWifiondivo& window, FILE* file) {
                window.m_p2_4GraphCH->save2_4GraphCHResult(file, ReportFontSize);
            },
            m_p2_4Graph, Picture2_4Suffix},
        {ap5,
            [](const CWifiondivo& window, FILE* file) {
                window.m_p5GraphCH->save_5GraphCHResult(file, ReportFontSize);
            },
            m_p5Graph, Picture5Suffix},
    };
    QList<const BandReport*> reported;
    for (const BandReport& band : bands) {
        if (band.occupiedChannels > 0)
            reported.append(&band);
    }

    const std::string name = reportName(entered);
    createDir(pictureFolder(name).c_str());
    removeUnfinishedFiles();
    // An earlier report that this user may not write stays, and the save ends here, as if opening
    // the report for writing failed.
    WholeFile report(reportFolder(), reportFile(name), WholeFile::FolderOrLink);
    FILE* const file = report.file();
    if (!file)
        return;
    html_saveGeneralInfoOfSet(file, ReportFontSize);
    if (!reported.isEmpty())
        m_pWifiSSIDHelper->saveSSIDResult(file, ReportFontSize);
    for (const BandReport* band : reported) {
        band->writeSection(*this, file);
        writePicture(file, relativePicturePath(name, band->pictureSuffix));
    }
    std::fputs("</body>\n</html>", file);
    // Save the pictures after the report: if the report fails, an earlier report keeps its
    // pictures.
    if (!report.commit())
        return;
    for (const BandReport* band : reported)
        savePicture(pictureOf(band->graph), name, band->pictureSuffix);
}

std::vector<CWifiondivo::ScanConnection> CWifiondivo::scanConnections()
{
    const char* const table = SLOT(creatChannelsList(const stEXT_WIFISCAN_result&));
    const char* const graph = SLOT(GetAPList(const stEXT_WIFISCAN_result&));
    const char* const table2_4 = SIGNAL(sigWifiSSID2_4GCHScanReply(stEXT_WIFISCAN_result));
    return {
        {SIGNAL(sigWifiScanBegin()), m_pScanResult, SLOT(scanBegin())},
        {SIGNAL(sigWifiSSIDScanReply(stK510_WIFISCAN_APDATA)), m_pScanResult,
            SLOT(addScanResultRecord(const stK510_WIFISCAN_APDATA&))},
        {SIGNAL(sigWifiScanError()), m_pScanResult, SLOT(scanError())},
        {SIGNAL(sigWifiSSIDScanEnd()), m_pScanResult, SLOT(scanEnd())},
        {SIGNAL(sigWifiSSIDScanNoResult()), m_pScanResult, SLOT(scanNoResult())},
        {SIGNAL(sigWifiScanError()), m_pToolbox, SLOT(enableBtnScanAp())},
        {SIGNAL(sigWifiSSIDScanEnd()), m_pToolbox, SLOT(enableBtnScanAp())},
        {table2_4, m_p2_4GraphCH, table},
        {SIGNAL(sigWifiSSID_5GCHScanReply(stEXT_WIFISCAN_result)), m_p5GraphCH, table},
        {SIGNAL(sigWifiSSID2_4G_CHScanReply(stEXT_WIFISCAN_result)), m_p2_4Graph, graph},
        {SIGNAL(sigWifiSSID_5G_CHScanReply(stEXT_WIFISCAN_result)), m_p5Graph, graph},
        // A report switches to a new table together with the channel summaries. After finished(),
        // which arrives last, it reads the worker's own table again, after a failed scan as well.
        {table2_4, this, SLOT(onScanTable(const stEXT_WIFISCAN_result&))},
        {SIGNAL(finished()), this, SLOT(onScanThreadFinished())},
    };
}

void CWifiondivo::deliverScanSignals()
{
    // Without this, the report's sections could describe different scans: the thread may have ended
    // before its signals are delivered. During a scan, the held table and the summaries belong to
    // the same scan.
    for (const ScanConnection& to : scanConnections())
        QCoreApplication::sendPostedEvents(to.receiver, QEvent::MetaCall);
}

void CWifiondivo::html_saveGeneralInfoOfSet(FILE* pfOutput, int font_size)
{
    beginTable(pfOutput, font_size, tr("General Information").toStdString());

    const QDateTime now = QDateTime::currentDateTime();
    writeRow(pfOutput, DataRow, font_size,
        {tr("Date and Time Results Were Saved:").toStdString(),
            now.toString(QLatin1String("dddd MMMM yyyy hh:mm:ss")).toStdString()});

    swupdate::CNetUpdateHelper updateHelper;
    char version[128] = {};
    updateHelper.GetVersion2(device::path(device::VendorInfoFile).c_str(), version, sizeof version);
    writeRow(
        pfOutput, DataRow, font_size, {tr("Software Version:").toStdString(), fieldText(version)});

    halmanager::PlatE2PromServ eeprom;
    char mac[6] = {};
    const int macLine = __LINE__ + 1;
    if (eeprom.ReadMacAddr(mac) == 0) {
        unsigned char byte[6];
        std::memcpy(byte, mac, sizeof byte);
        char text[32];
        std::snprintf(text, sizeof text, "%02x:%02x:%02x:%02x:%02x:%02x", byte[0], byte[1], byte[2],
            byte[3], byte[4], byte[5]);
        writeRow(
            pfOutput, DataRow, font_size, {tr("MAC Address of Test Port:").toStdString(), text});
    } else {
        reportUnreadable(macLine);
    }

    char serial[32] = {};
    const int serialLine = __LINE__ + 1;
    if (eeprom.ReadSN(serial) == 0) {
        writeRow(pfOutput, DataRow, font_size,
            {tr("Serial Number of Test Set:").toStdString(), fieldText(serial)});
    } else {
        reportUnreadable(serialLine);
    }
    endTable(pfOutput);
}

} // namespace wifiondivo

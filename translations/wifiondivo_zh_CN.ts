<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_GB">
<context>
    <name>AccessPointList</name>
    <message>
        <source>Open</source>
        <translation>开放</translation>
    </message>
    <message>
        <source>Signal %1</source>
        <translation>信号 %1</translation>
    </message>
    <message>
        <source>Access points</source>
        <translation>接入点</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>安全</translation>
    </message>
    <message>
        <source>Press Scan to look for access points.</source>
        <translation>按“扫描”搜索接入点。</translation>
    </message>
</context>
<context>
    <name>CKeyPad</name>
    <message>
        <source>Shift</source>
        <translation>切换</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>退格</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>SHIFT</source>
        <translation>大写</translation>
    </message>
    <message>
        <source>abc</source>
        <translation>abc</translation>
    </message>
    <message>
        <source>#+=</source>
        <translation>#+=</translation>
    </message>
</context>
<context>
    <name>CMessageBox</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>CPageTable</name>
    <message>
        <source>Previous</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一页</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>WIFI Scan Start...</source>
        <translation>开始扫描 Wi-Fi...</translation>
    </message>
    <message>
        <source>WIFI Scan In Progress...</source>
        <translation>正在扫描 Wi-Fi...</translation>
    </message>
    <message>
        <source>WIFI Scan Failed</source>
        <translation>Wi-Fi 扫描失败</translation>
    </message>
    <message>
        <source>WIFI Scan Finished</source>
        <translation>Wi-Fi 扫描完成</translation>
    </message>
    <message>
        <source>WIFI Scan:</source>
        <translation>Wi-Fi 扫描：</translation>
    </message>
    <message>
        <source>ESSID</source>
        <translation>ESSID</translation>
    </message>
    <message>
        <source>BSSID</source>
        <translation>BSSID</translation>
    </message>
    <message>
        <source>WIFI Scan No Results</source>
        <translation>Wi-Fi 扫描无结果</translation>
    </message>
</context>
<context>
    <name>testset::DeviceFolder</name>
    <message>
        <source>the scan tool %1 cannot be started</source>
        <translation>无法启动扫描工具 %1</translation>
    </message>
    <message>
        <source>the scan&apos;s output %1 cannot be written: %2</source>
        <translation>无法写入扫描输出 %1：%2</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>%1 所在的磁盘已满</translation>
    </message>
    <message>
        <source>the scan tool wrote no output</source>
        <translation>扫描工具没有写出任何输出</translation>
    </message>
    <message>
        <source>the scan tool ended without a closing line</source>
        <translation>扫描工具结束时没有写出结束行</translation>
    </message>
</context>
<context>
    <name>testset::HomeScreen</name>
    <message>
        <source>No Wi-Fi adapter: choose a stored scan.</source>
        <translation>没有 Wi-Fi 适配器：请选择已保存的扫描。</translation>
    </message>
    <message>
        <source>access points on 2.4 GHz: %1, on 5 GHz: %2</source>
        <translation>2.4 GHz 接入点：%1，5 GHz：%2</translation>
    </message>
    <message>
        <source>a scan that fails</source>
        <translation>失败的扫描</translation>
    </message>
    <message>
        <source>Choose a utility.</source>
        <translation>请选择测试工具。</translation>
    </message>
    <message>
        <source>Open: press to go on</source>
        <translation>已打开：按下继续</translation>
    </message>
    <message>
        <source>Wi-Fi Analyser</source>
        <translation>Wi-Fi 分析仪</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>报告：%1</translation>
    </message>
    <message>
        <source>No reports yet</source>
        <translation>还没有报告</translation>
    </message>
</context>
<context>
    <name>testset::ReportDocument</name>
    <message>
        <source>The picture %1 cannot be shown.</source>
        <translation>无法显示图片 %1。</translation>
    </message>
    <message>
        <source>Wi-Fi report %1</source>
        <translation>Wi-Fi 报告 %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
</context>
<context>
    <name>testset::ResultsScreen</name>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存时间</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>There are no reports yet. F1 in the analyser saves one.</source>
        <translation>还没有报告。在分析仪中按 F1 保存报告。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>All reports</source>
        <translation>所有报告</translation>
    </message>
    <message>
        <source>Export as PDF</source>
        <translation>导出为 PDF</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>%1 is no report of the analyser</source>
        <translation>%1 不是分析仪的报告</translation>
    </message>
    <message>
        <source>Exported as %1</source>
        <translation>已导出为 %1</translation>
    </message>
    <message>
        <source>Not exported: %1: %2</source>
        <translation>未导出：%1：%2</translation>
    </message>
    <message>
        <source>No file manager opened %1</source>
        <translation>没有文件管理器打开 %1</translation>
    </message>
</context>
<context>
    <name>testset::TestSetWindow</name>
    <message>
        <source>Closing...</source>
        <translation>正在关闭...</translation>
    </message>
    <message>
        <source>Test Set</source>
        <translation>测试仪</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>拔出</translation>
    </message>
    <message>
        <source>Plug in</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>Replay: %1</source>
        <translation>回放：%1</translation>
    </message>
    <message>
        <source>(unplugged)</source>
        <translation>（已拔出）</translation>
    </message>
    <message>
        <source>Scan is not possible: %1</source>
        <translation>无法扫描：%1</translation>
    </message>
    <message>
        <source>Not saved: nothing was written in %1</source>
        <translation>未保存：%1 中没有写入任何内容</translation>
    </message>
    <message>
        <source>Saved %1, but not all of its pictures</source>
        <translation>已保存 %1，但缺少部分图片</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已保存 %1</translation>
    </message>
    <message>
        <source>Close and open to scan again</source>
        <translation>请关闭后重新打开再扫描</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>scanning: %1 s</source>
        <translation>正在扫描：%1 秒</translation>
    </message>
</context>
<context>
    <name>testset::TopBar</name>
    <message>
        <source>Busy</source>
        <translation>忙</translation>
    </message>
</context>
<context>
    <name>wifiondivo::CScanResult</name>
    <message>
        <source>Channel</source>
        <translation>信道</translation>
    </message>
</context>
<context>
    <name>wifiondivo::CToolbox</name>
    <message>
        <source>Scan</source>
        <translation>扫描</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下</translation>
    </message>
</context>
<context>
    <name>wifiondivo::CWifiondivo</name>
    <message>
        <source>Scan</source>
        <translation>扫描</translation>
    </message>
    <message>
        <source>2.4Graph</source>
        <translation>2.4 频谱</translation>
    </message>
    <message>
        <source>2.4GraphCH</source>
        <translation>2.4 信道</translation>
    </message>
    <message>
        <source>5.0GraphCH</source>
        <translation>5.0 信道</translation>
    </message>
    <message>
        <source>5.0Graph</source>
        <translation>5.0 频谱</translation>
    </message>
    <message>
        <source>AP List</source>
        <translation>AP 列表</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>WIFI device can&apos;t be detected!</source>
        <translation>未检测到 Wi-Fi 适配器！</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Save Test Result</source>
        <translation>保存测试结果</translation>
    </message>
    <message>
        <source>General Information</source>
        <translation>基本信息</translation>
    </message>
    <message>
        <source>Date and Time Results Were Saved:</source>
        <translation>结果保存日期和时间：</translation>
    </message>
    <message>
        <source>Software Version:</source>
        <translation>软件版本：</translation>
    </message>
    <message>
        <source>MAC Address of Test Port:</source>
        <translation>测试端口 MAC 地址：</translation>
    </message>
    <message>
        <source>Serial Number of Test Set:</source>
        <translation>测试仪序列号：</translation>
    </message>
</context>
<context>
    <name>wifiondivo::Wifiondivo_2_4GraphCH</name>
    <message>
        <source>Channel</source>
        <translation>信道</translation>
    </message>
    <message>
        <source>AP</source>
        <translation>AP</translation>
    </message>
    <message>
        <source>Best Signal</source>
        <translation>最强信号</translation>
    </message>
    <message>
        <source>Best Signal Bar</source>
        <translation>最强信号条</translation>
    </message>
</context>
<context>
    <name>wifiondivo::Wifiondivo_5GraphCH</name>
    <message>
        <source>Channel</source>
        <translation>信道</translation>
    </message>
    <message>
        <source>AP</source>
        <translation>AP</translation>
    </message>
    <message>
        <source>Best Signal</source>
        <translation>最强信号</translation>
    </message>
    <message>
        <source>Best Signal Bar</source>
        <translation>最强信号条</translation>
    </message>
</context>
</TS>

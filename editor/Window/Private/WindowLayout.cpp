#include "WindowLayout.h"

#include "Misc/Paths.h"

DEFINE_LOG_CATEGORY_STATIC(LogEditorWindow, Log, All);

namespace
{
/** Goes up when what an older editor has kept no longer fits. */
constexpr int FormatVersion = 1;

const QString VersionKey = QStringLiteral("Version");
const QString CheckKey = QStringLiteral("Check");
const QString GeometryKey = QStringLiteral("Geometry");
const QString DocksKey = QStringLiteral("Docks");
const QString TabsKey = QStringLiteral("Tabs");

QString GetLayoutFile()
{
	return ToQString(FPaths::Combine(FPaths::ProjectSavedDir(), TEXT("Config"), TEXT("EditorWindow.ini")));
}

/** Qt believes what it is given as a state: bytes that were changed are found here. */
QString MakeCheck(const QByteArray& Geometry, const QByteArray& Docks)
{
	return QString::fromLatin1(QCryptographicHash::hash(Geometry + Docks, QCryptographicHash::Md5).toHex());
}
}

TOptional<FWindowLayout> FWindowLayout::Read()
{
	const QSettings File(GetLayoutFile(), QSettings::IniFormat);
	FWindowLayout Layout;
	Layout.Geometry = File.value(GeometryKey).toByteArray();
	Layout.Docks = File.value(DocksKey).toByteArray();
	for (const QString& Tab : File.value(TabsKey).toStringList())
	{
		Layout.Tabs.Add(FName(ToFString(Tab)));
	}
	const bool bOwn = File.status() == QSettings::NoError && File.value(VersionKey).toInt() == FormatVersion &&
		File.value(CheckKey).toString() == MakeCheck(Layout.Geometry, Layout.Docks);
	return bOwn ? TOptional<FWindowLayout>(MoveTemp(Layout)) : TOptional<FWindowLayout>();
}

void FWindowLayout::Write() const
{
	QStringList TabNames;
	for (const FName& Tab : Tabs)
	{
		TabNames.append(ToQString(Tab.ToString()));
	}
	QSettings File(GetLayoutFile(), QSettings::IniFormat);
	File.clear();
	File.setValue(VersionKey, FormatVersion);
	File.setValue(CheckKey, MakeCheck(Geometry, Docks));
	File.setValue(GeometryKey, Geometry);
	File.setValue(DocksKey, Docks);
	File.setValue(TabsKey, TabNames);
	File.sync();
	if (File.status() != QSettings::NoError)
	{
		UE_LOG(LogEditorWindow, Warning, TEXT("%s: the window's layout can't be kept"), *ToFString(File.fileName()));
	}
}

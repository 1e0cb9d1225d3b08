"""Evaluation screens for continuous emissions monitoring data, driven from Python.

The stubs are split by family; at run time all of it is in the one module. This page is made
by scripts/make-stubs.py.
"""

from ._controls import (
    ctrl7Day as ctrl7Day,
    ctrl7DayResult as ctrl7DayResult,
    ctrl7DaySetUp as ctrl7DaySetUp,
    ctrlMaxMW as ctrlMaxMW,
    ctrlRangeEval as ctrlRangeEval,
    HistogramTool as HistogramTool,
    ParamSelect as ParamSelect,
    SingleParamSelect as SingleParamSelect,
)
from ._data import (
    DIDataPoint as DIDataPoint,
    DIDataSet as DIDataSet,
    DIInterval as DIInterval,
    DILookupEntry as DILookupEntry,
    DILookups as DILookups,
    DILookupService as DILookupService,
    DIParameter as DIParameter,
    DIParameters as DIParameters,
    DIRecord as DIRecord,
    DIRecordStore as DIRecordStore,
    DIServer as DIServer,
    DISiteInfo as DISiteInfo,
    DIStatusCodes as DIStatusCodes,
)
from ._functions import (
    CurrentDateTime as CurrentDateTime,
    DateAddExact as DateAddExact,
    FormatNumber as FormatNumber,
    FormatTimeStamp as FormatTimeStamp,
    GeneralNumber as GeneralNumber,
    IntervalStart as IntervalStart,
    IsDate as IsDate,
    IsNoDate as IsNoDate,
    IsNumeric as IsNumeric,
    IsPercentGasPID as IsPercentGasPID,
    IsValidPID as IsValidPID,
    MakePID as MakePID,
    OpenSite as OpenSite,
    PIDPart as PIDPart,
    PIDToText as PIDToText,
    RoundNumber as RoundNumber,
    SetClock as SetClock,
    SetRegionalSettings as SetRegionalSettings,
    ShortDate as ShortDate,
    ShortTime as ShortTime,
    TakeFieldFromRight as TakeFieldFromRight,
    TextToPID as TextToPID,
    ToDate as ToDate,
    ToSingle as ToSingle,
    UnitPID as UnitPID,
)
from ._records import (
    CalLimitRulesEnum as CalLimitRulesEnum,
    cls7DayAnalyzerCal as cls7DayAnalyzerCal,
    clsDaySummary as clsDaySummary,
    clsStrippedCal as clsStrippedCal,
)
from ._report import (
    ReportDocument as ReportDocument,
    ReportLine as ReportLine,
    ReportLines as ReportLines,
    ReportPage as ReportPage,
    ReportPages as ReportPages,
    ReportRectangle as ReportRectangle,
    ReportRectangles as ReportRectangles,
    ReportTextItem as ReportTextItem,
    ReportTextItems as ReportTextItems,
)
from ._values import (
    DI1Params as DI1Params,
    Empty as Empty,
    EmptyType as EmptyType,
    Error as Error,
    NoDate as NoDate,
    Single as Single,
)
from ._widgets import (
    Button as Button,
    CheckBox as CheckBox,
    ComboBox as ComboBox,
    CommonDialog as CommonDialog,
    Control as Control,
    Event as Event,
    Frame as Frame,
    Grid as Grid,
    Image as Image,
    ImageList as ImageList,
    Label as Label,
    Line as Line,
    OptionButton as OptionButton,
    TextBox as TextBox,
    TreeNode as TreeNode,
    TreeView as TreeView,
    Widget as Widget,
)

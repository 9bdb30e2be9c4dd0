/* Settings of the menu. The entries follow below; they are assigned without a declaration,
   so this file stays out of strict mode. */
var NoOffFirstLineMenus = [NB];
var LowBgColor = '#78D2FF';
var LowSubBgColor = '#CCFFCC';
var HighBgColor = '#FFFFCC';
var HighSubBgColor = '#FFFFCC';
var FontLowColor = 'black';
var FontSubLowColor = 'black';
var FontHighColor = '#0066FF';
var FontSubHighColor = '#0066FF';
var BorderColor = 'black';
var BorderSubColor = 'black';
var BorderWidth = 1;
var BorderBtwnElmnts = 1;
var FontFamily = "arial,comic sans ms,technical";
var FontSize = 9;
var FontBold = 1;
var FontItalic = 0;
var MenuTextCentered = 'left';
var MenuCentered = 'left';
var MenuVerticalCentered = 'top';
var ChildOverlap = .2;
var ChildVerticalOverlap = .2;
var StartTop = 83;
var StartLeft = 0;
var LeftPaddng = 3;
var TopPaddng = 2;
var FirstLineHorizontal = 1;
var DissapearDelay = 1000;
var FirstLineFrame = 'navig';
var SecLineFrame = 'space';
var DocTargetFrame = 'space';
var ShowArrow = 1;
var KeepHilite = 1;
var MenuWrap = 1;
var Arrws = ['tri.gif',5,10,'tridown.gif',10,5,'trileft.gif',5,10];

function BeforeStart() {}
function AfterBuild() {}
function BeforeFirstOpen() {}
function AfterCloseAll() {}

## Ends with objects, decks and listeners alive. Whatever the end says on the error stream is a fault.
global slides
deck = vellox.deck ("exit.pptx");
slides = {deck.add("Title and Content"), vellox.ppt.TextBox()};
dispatcher = vellox.ppt.MessageDispatcher.getTheDispatcher ();
dispatcher.addListener (@(event) error ("test:late", "a listener was called late"));
dispatcher.Filter.SourceFilter = slides{2};
dispatcher.Filter.DebugMessagesPass = false;
deck.close ();
x = vellox.ppt.Paragraph ("x");
clear all
y = vellox.ppt.Paragraph ("y");
clear classes
z = vellox.ppt.Paragraph ("z");
dispatcher = vellox.ppt.MessageDispatcher.getTheDispatcher ();
dispatcher.Filter.DebugMessagesPass = true;

## deck = vellox.deck (output)
## deck = vellox.deck (output, template)
## deck = vellox.deck (output, template, profile)
##
## A presentation that is written to the file output by its close (). Without a template, or with an empty one, it is
## made on the default one. The profile says by which rules slides are made of the template: "office", as the office
## programs do, or "classic", as vellox.ppt.Presentation does by itself.
##
##     deck = vellox.deck ("report.pptx", "company.potx");
##     slide = deck.add ("Title and Content");
##     slide.replace ("Title", "Weekly report");
##     deck.close ();
function presentation = deck (output, template = "", profile = "office")
  if (isempty (template))
    presentation = vellox.ppt.Presentation (output);
  else
    presentation = vellox.ppt.Presentation (output, template);
  endif
  presentation.Profile = profile;
endfunction

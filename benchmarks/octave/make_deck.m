## Decks of make_deck, from Octave:
##
##     make_deck.m text <slides> <output.pptx>
##     make_deck.m small|small-path <decks> <output.pptx> <folder>
1;

function slide = add_text_slide (deck, number)
  slide = deck.add ("Title and Content");
  slide.replace ("Title", sprintf ("Results of run %d", number));
  for bullet = 0:4
    slide.add ("Content", sprintf ("The value of this quantity was measured as %d", number * bullet));
  endfor
endfunction

function make_text_deck (output, slides)
  deck = vellox.ppt.Presentation (output);
  for i = 0:slides - 1
    add_text_slide (deck, i);
  endfor
  deck.close ();
endfunction

function make_small_deck (output, image, varargin)
  deck = vellox.ppt.Presentation (output, varargin{:});
  for i = 0:4
    slide = add_text_slide (deck, i);
  endfor
  slide.add (vellox.ppt.Picture (image));
  deck.close ();
endfunction

function main (kind, count, output, folder)
  if (strcmp (kind, "text"))
    make_text_deck (output, str2double (count));
    return;
  endif
  template = {};
  if (strcmp (kind, "small"))
    template = {vellox.ppt.Template()};
  endif
  for i = 1:str2double (count)
    make_small_deck (output, [folder, "/0.png"], template{:});
  endfor
endfunction

main (argv (){:});

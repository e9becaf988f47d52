// SPDX-License-Identifier: MIT
/** Shows one slide after the other, and is what everything else is started from. */
const Present = (() => {
  const { slides } = Lesson;
  const { body } = document;
  let current = null;
  const prepared = new Map(); // what takes the tools of a slide back

  function prepare(slide) {
    const player = Animate.player(slide);
    if (!prepared.has(slide)) {
      Links.prepare(slide);
      Media.prepare(slide);
      Games.prepare(slide);
      prepared.set(slide, [...Tools.prepare(slide), ...Cards.prepare(slide)]);
      Ink.listen(slide);
    }
    return player;
  }

  /** Puts a slide in the place of the one that is shown. isFinished: as it is when everything has moved. */
  function show(slide, isFinished) {
    if (slide === current) {
      return;
    }
    const going = current;
    current = slide;
    slide.section.classList.add('shown');
    if (going) {
      Animate.player(going).stop();
      Media.stop(going);
      if (going.section.contains(document.activeElement)) {
        slide.section.focus({ preventScroll: true });
      }
      Changes.run(slide, going);
    }
    const player = prepare(slide);
    if (isFinished) {
      player.finish();
    } else {
      player.begin();
    }
    Media.start(slide);
    const place = `${slides.indexOf(slide) + 1} / ${slides.length}`;
    bar.place.textContent = place;
    bar.play.hidden = !Games.ofSlide(slide);
    document.title = slide.number === 1 ? Lesson.title : `${slide.number} – ${Lesson.title}`;
    Stage.say(Words.text('Slide %1', slide.number));
  }

  /** Shows a slide and writes its number into the address. */
  function open(slide, isFinished) {
    if (slide && slide !== current) {
      show(slide, isFinished);
      window.location.hash = `#${slide.number}`;
    }
  }

  /** A number of a slide, or first, last, next and previous. */
  function goTo(page) {
    const at = slides.indexOf(current);
    const words = { first: slides[0], last: slides[slides.length - 1], next: slides[at + 1], previous: slides[at - 1] };
    open(Object.hasOwn(words, page) ? words[page] : slides.find((slide) => slide.number === Number(page)));
  }

  function forward() {
    if (!Animate.player(current).advance()) {
      open(slides[slides.indexOf(current) + 1]);
    }
  }

  function back() {
    open(slides[slides.indexOf(current) - 1], true);
  }

  function fromAddress() {
    const number = /^#(?:slide)?(\d+)$/.exec(window.location.hash);
    return (number && slides.find((slide) => slide.number === Number(number[1]))) || slides[0];
  }

  function toggleFullScreen() {
    if (document.fullscreenElement) {
      document.exitFullscreen();
    } else if (document.documentElement.requestFullscreen) {
      document.documentElement.requestFullscreen().catch(() => {});
    }
  }

  /** All slides side by side, to choose one of them. */
  function setOverview(isOn) {
    body.classList.toggle('overview', isOn);
    slides.forEach((slide) => { slide.stage.inert = isOn; });
    const chooser = current.section.querySelector('.choose');
    if (isOn) {
      current.section.scrollIntoView({ block: 'center' });
      chooser.focus({ preventScroll: true });
    } else {
      chooser.blur();
    }
  }

  const isOverview = () => body.classList.contains('overview');

  /** Has the keyboard go to another slide of the overview: so many onwards, or rows of them. */
  function moveChoice(steps, rows = 0) {
    const columns = getComputedStyle(document.querySelector('main')).gridTemplateColumns.split(' ').length;
    const chosen = slides.findIndex((slide) => slide.section.contains(document.activeElement));
    const at = (chosen < 0 ? slides.indexOf(current) : chosen) + steps + rows * columns;
    slides[Math.min(Math.max(at, 0), slides.length - 1)].section.querySelector('.choose').focus();
  }

  function startAgain() {
    (prepared.get(current) || []).forEach((action) => action());
    Animate.player(current).begin();
    Ink.clear(current);
  }

  const bar = {};
  function makeBar() {
    const ink = (mode, label, key) => Stage.button(label, `${label} (${key})`, () => Ink.setMode(mode),
      { set: { 'data-ink': mode, 'aria-pressed': 'false', 'aria-label': label } });
    const swatches = Ink.colors.map(([color, name]) => {
      const swatch = Stage.button('', name, () => Ink.setColor(color), { className: 'swatch' });
      swatch.style.backgroundColor = color;
      return swatch;
    });
    bar.place = Stage.button('', Words.text('All slides (%1)', 'o'), () => setOverview(!isOverview()),
      { className: 'place' });
    bar.play = Stage.button(Words.text('Play'), Words.text('Play the game of this slide'),
      () => Games.ofSlide(current)());
    bar.element = Stage.make('nav', { className: 'bar', set: { 'aria-label': Words.text('Lesson') } },
      Stage.button('‹', Words.text('Back'), back, { className: 'arrow' }), bar.place,
      Stage.button('›', Words.text('Next'), forward, { className: 'arrow' }), bar.play,
      ink('pen', Words.text('Pen'), 'p'), ...swatches, ink('eraser', Words.text('Rub out'), 'e'),
      Stage.button(Words.text('Start again'),
        Words.text('This slide from its beginning, without what was drawn (%1)', 'r'), startAgain),
      Stage.button(Words.text('Full screen'), Words.text('Full screen (%1)', 'f'), toggleFullScreen));
    bar.element.addEventListener('click', (event) => event.stopPropagation());
    body.append(bar.element, Stage.voice);
    let timer = 0;
    const wake = () => {
      body.classList.remove('idle');
      clearTimeout(timer);
      timer = setTimeout(() => body.classList.add('idle'), 3000);
    };
    // A pointer wakes the bar where it stands, so that nothing of the slide is hidden elsewhere.
    document.addEventListener('pointermove', (event) => event.clientY > window.innerHeight * 0.8 && wake());
    document.addEventListener('pointerdown', (event) => event.pointerType === 'touch' && wake());
    wake();
  }

  let digits = '';
  const keys = {
    ArrowRight: forward, ArrowDown: forward, PageDown: forward, ' ': forward, n: forward,
    ArrowLeft: back, ArrowUp: back, PageUp: back, Backspace: back,
    Home: () => goTo('first'), End: () => goTo('last'),
    f: toggleFullScreen, o: () => setOverview(!isOverview()),
    p: () => Ink.setMode('pen'), e: () => Ink.setMode('eraser'), r: startAgain,
    Escape: () => { setOverview(false); if (Ink.isOn()) { Ink.setMode(null); } },
  };

  const overviewKeys = {
    ArrowRight: () => moveChoice(1), ArrowLeft: () => moveChoice(-1),
    ArrowDown: () => moveChoice(0, 1), ArrowUp: () => moveChoice(0, -1),
    Home: () => moveChoice(-slides.length), End: () => moveChoice(slides.length),
    f: keys.f, o: keys.o, Escape: keys.Escape,
  };

  /** Keys that something else has no use for. */
  function onKey(event) {
    const isPressed = event.target.closest('button, a') && (event.key === ' ' || event.key === 'Enter');
    const actions = isOverview() ? overviewKeys : keys;
    const action = Object.hasOwn(actions, event.key) ? actions[event.key] : null;
    if (action && isForLesson(event) && !isPressed) {
      event.preventDefault();
      action();
    }
  }

  function isForLesson(event) {
    const isWorked = event.target.closest('audio, video') || document.querySelector('dialog[open]');
    return !isWorked && !event.ctrlKey && !event.altKey && !event.metaKey;
  }

  /** A number and Enter lead to a slide, whatever Enter does where the keyboard is. */
  function onNumber(event) {
    if (event.key === 'Enter' && digits && isForLesson(event)) {
      event.preventDefault();
      event.stopPropagation();
      goTo(digits);
      setOverview(false);
    }
    digits = /^\d$/.test(event.key) && isForLesson(event) ? digits + event.key : '';
  }

  /** Left and right margins lead back and forward; elsewhere a click plays what comes next on the slide. */
  function onClick(event) {
    if (isOverview() || Ink.isOn()) {
      return;
    }
    const margin = 0.1;
    const part = event.clientX / window.innerWidth;
    if (part < margin) {
      back();
    } else if (part > 1 - margin) {
      forward();
    } else {
      Animate.player(current).advance();
    }
  }

  function listenToSwipes(main) {
    let from = null;
    main.addEventListener('pointerdown', (event) => {
      const isSwipe = event.pointerType === 'touch' && !Ink.isOn() && !isOverview();
      from = isSwipe ? { x: event.clientX, y: event.clientY } : null;
    });
    main.addEventListener('pointerup', (event) => {
      if (!from) {
        return;
      }
      const x = event.clientX - from.x;
      const y = event.clientY - from.y;
      if (Math.abs(x) > 40 && Math.abs(x) > 2 * Math.abs(y)) {
        (x < 0 ? forward : back)();
      }
    });
  }

  function start() {
    const main = document.querySelector('main');
    slides.forEach((slide) => {
      slide.section.tabIndex = -1;
      slide.svg.setAttribute('role', 'group');
      slide.section.append(Stage.button('', Words.text('Slide %1', slide.number), (event) => {
        event.stopPropagation();
        setOverview(false);
        open(slide);
      }, { className: 'choose' }));
    });
    body.classList.add('playing');
    makeBar();
    main.addEventListener('click', onClick);
    listenToSwipes(main);
    document.addEventListener('keydown', onNumber, true);
    document.addEventListener('keydown', onKey);
    document.addEventListener('dragstart', (event) => event.preventDefault());
    window.addEventListener('hashchange', () => show(fromAddress()));
    show(fromAddress());
  }

  return { start, goTo };
})();

if (Lesson.slides.length > 0) {
  Present.start();
}

// SPDX-License-Identifier: MIT
/** Drawing over slides, and rubbing it out. What was drawn stays while the page is open. */
const Ink = (() => {
  const colors = [
    ['#c62828', Words.text('Pen in red')], ['#1f3a93', Words.text('Pen in blue')],
    ['#1b7a34', Words.text('Pen in green')], ['#111111', Words.text('Pen in black')],
  ];
  let mode = null; // pen or eraser
  let color = colors[0][0];

  function sheet(slide) {
    let ink = slide.svg.querySelector(':scope > g.ink');
    if (!ink) {
      ink = Stage.makeSvg('g', { class: 'ink', 'aria-hidden': 'true' });
      slide.svg.append(ink);
    }
    return ink;
  }

  function setMode(wanted) {
    mode = mode === wanted ? null : wanted;
    document.body.classList.toggle('inking', Boolean(mode));
    document.body.classList.toggle('erasing', mode === 'eraser');
    document.querySelectorAll('[data-ink]').forEach((one) => {
      one.setAttribute('aria-pressed', one.dataset.ink === mode);
    });
    const told = { pen: Words.text('Pen on'), eraser: Words.text('Eraser on') };
    Stage.say(told[mode] || Words.text('Pen and eraser off'));
  }

  function setColor(wanted) {
    color = wanted;
    if (mode !== 'pen') {
      setMode('pen');
    }
  }

  function clear(slide) {
    sheet(slide).replaceChildren();
  }

  /** Of a point from the line between two others. */
  function distance(point, from, to) {
    const length = (to.x - from.x) ** 2 + (to.y - from.y) ** 2;
    const along = length > 0
      ? ((point.x - from.x) * (to.x - from.x) + (point.y - from.y) * (to.y - from.y)) / length : 0;
    const part = Math.min(Math.max(along, 0), 1);
    return Math.hypot(from.x + part * (to.x - from.x) - point.x, from.y + part * (to.y - from.y) - point.y);
  }

  /** Removes the strokes near a point. */
  function rub(slide, point) {
    const reach = slide.height * 0.015;
    [...sheet(slide).children].forEach((stroke) => {
      const points = [...stroke.points];
      if (points.some((one, i) => distance(point, points[Math.max(i - 1, 0)], one) < reach)) {
        stroke.remove();
      }
    });
  }

  function listen(slide) {
    let stroke = null;
    slide.stage.addEventListener('pointerdown', (event) => {
      if (!mode || event.button !== 0) {
        return;
      }
      event.preventDefault();
      slide.stage.setPointerCapture(event.pointerId);
      const point = Stage.pointOn(slide, event);
      if (mode === 'eraser') {
        stroke = 'eraser';
        rub(slide, point);
        return;
      }
      stroke = Stage.makeSvg('polyline', { stroke: color, 'stroke-width': slide.height * 0.005 });
      sheet(slide).append(stroke);
      slide.svg.append(sheet(slide));
      addPoint(stroke, slide, point);
    });
    slide.stage.addEventListener('pointermove', (event) => {
      if (!stroke) {
        return;
      }
      const events = event.getCoalescedEvents ? event.getCoalescedEvents() : [];
      (events.length > 0 ? events : [event]).forEach((one) => {
        const point = Stage.pointOn(slide, one);
        if (stroke === 'eraser') {
          rub(slide, point);
        } else {
          addPoint(stroke, slide, point);
        }
      });
    });
    const end = () => { stroke = null; };
    slide.stage.addEventListener('pointerup', end);
    slide.stage.addEventListener('pointercancel', end);
  }

  function addPoint(stroke, slide, { x, y }) {
    const point = slide.svg.createSVGPoint();
    point.x = x;
    point.y = y;
    stroke.points.appendItem(point);
  }

  return { colors, setMode, setColor, clear, listen, isOn: () => Boolean(mode) };
})();
